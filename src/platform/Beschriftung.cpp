// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Beschriftung.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {

// Where the tie is kept: on the button, its label; on the label, its buttons.
constexpr char BeschriftetVon[] = "tafelkasse_beschriftet_von";
constexpr char Beschriftet[] = "tafelkasse_beschriftet";

using Bezug = QPair<QAccessibleInterface *, QAccessible::Relation>;

class Knopf final : public QAccessibleWidget {
public:
    explicit Knopf(QPushButton *knopf)
        : QAccessibleWidget(knopf, QAccessible::Button)
    { }

    QString text(QAccessible::Text t) const override
    {
        QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            text = knopf()->text();
        return text;
    }

    QList<Bezug> relations(QAccessible::Relation match) const override
    {
        QList<Bezug> bezuege = QAccessibleWidget::relations(match);
        auto *label = knopf()->property(BeschriftetVon).value<QLabel *>();
        if (match & QAccessible::Label && label)
            bezuege.append({QAccessible::queryAccessibleInterface(label), QAccessible::Label});
        return bezuege;
    }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            knopf()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    QPushButton *knopf() const { return static_cast<QPushButton *>(widget()); }
};

class Schild final : public QAccessibleWidget {
public:
    explicit Schild(QLabel *label)
        : QAccessibleWidget(label, QAccessible::StaticText)
    { }

    QString text(QAccessible::Text t) const override
    {
        QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            text = static_cast<QLabel *>(widget())->text();
        return text;
    }

    QList<Bezug> relations(QAccessible::Relation match) const override
    {
        QList<Bezug> bezuege = QAccessibleWidget::relations(match);
        if (match & QAccessible::Labelled) {
            for (QObject *knopf : widget()->property(Beschriftet).value<QObjectList>())
                bezuege.append({QAccessible::queryAccessibleInterface(knopf), QAccessible::Labelled});
        }
        return bezuege;
    }
};

QAccessibleInterface *fabrik(const QString &, QObject *object)
{
    if (auto *knopf = qobject_cast<QPushButton *>(object); knopf && knopf->property(BeschriftetVon).isValid())
        return new Knopf(knopf);
    if (auto *label = qobject_cast<QLabel *>(object); label && label->property(Beschriftet).isValid())
        return new Schild(label);
    return nullptr;
}

} // namespace

namespace platform {

void BeschrifteKnoepfe(QLabel *beschriftung, const QList<QPushButton *> &knoepfe)
{
    QAccessible::installFactory(fabrik);
    QObjectList liste;
    for (QPushButton *knopf : knoepfe) {
        knopf->setProperty(BeschriftetVon, QVariant::fromValue(beschriftung));
        liste.append(knopf);
    }
    beschriftung->setProperty(Beschriftet, QVariant::fromValue(liste));
    // Qt may have made and kept an interface for a widget while it was built; the next question
    // then gets one of ours.
    for (QObject *widget : liste + QObjectList{beschriftung}) {
        QAccessibleInterface *schnittstelle = QAccessible::queryAccessibleInterface(widget);
        if (!dynamic_cast<Knopf *>(schnittstelle) && !dynamic_cast<Schild *>(schnittstelle))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(schnittstelle));
    }
}

} // namespace platform
