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

// A control that a screen reader names by the text it shows, where no name of its own is set.
template<typename Steuerelement>
class Benannt : public QAccessibleWidget {
public:
    Benannt(Steuerelement *steuerelement, QAccessible::Role rolle)
        : QAccessibleWidget(steuerelement, rolle)
    { }

    QString text(QAccessible::Text t) const override
    {
        QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            text = steuerelement()->text();
        return text;
    }

protected:
    Steuerelement *steuerelement() const { return static_cast<Steuerelement *>(widget()); }
};

class Knopf final : public Benannt<QPushButton> {
public:
    explicit Knopf(QPushButton *knopf)
        : Benannt(knopf, QAccessible::Button)
    { }

    QList<Bezug> relations(QAccessible::Relation match) const override
    {
        QList<Bezug> bezuege = QAccessibleWidget::relations(match);
        auto *label = steuerelement()->property(BeschriftetVon).value<QLabel *>();
        if (match & QAccessible::Label && label)
            bezuege.append({QAccessible::queryAccessibleInterface(label), QAccessible::Label});
        return bezuege;
    }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            steuerelement()->click();
        else
            QAccessibleWidget::doAction(action);
    }
};

class Schild final : public Benannt<QLabel> {
public:
    explicit Schild(QLabel *label)
        : Benannt(label, QAccessible::StaticText)
    { }

    QList<Bezug> relations(QAccessible::Relation match) const override
    {
        QList<Bezug> bezuege = QAccessibleWidget::relations(match);
        if (match & QAccessible::Labelled) {
            const auto knoepfe = widget()->property(Beschriftet).value<QObjectList>();
            for (QObject *knopf : knoepfe)
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
    const QObjectList alle = liste + QObjectList{beschriftung};
    for (QObject *widget : alle) {
        QAccessibleInterface *schnittstelle = QAccessible::queryAccessibleInterface(widget);
        if (!dynamic_cast<Knopf *>(schnittstelle) && !dynamic_cast<Schild *>(schnittstelle))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(schnittstelle));
    }
}

} // namespace platform
