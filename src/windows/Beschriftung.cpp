// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Beschriftung.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QPushButton>

namespace {

// Where the tie is kept, on each side as the list of the other: on a button its label, on the
// label its buttons.
constexpr char Gegenueber[] = "tafelkasse_beschriftung";

using Bezug = QPair<QAccessibleInterface *, QAccessible::Relation>;

// A control that a screen reader names by the text it shows, where no name of its own is set,
// and that stands in `bezug` to each control across the tie.
template<typename Steuerelement>
class Benannt : public QAccessibleWidget {
public:
    Benannt(Steuerelement *steuerelement, QAccessible::Role rolle, QAccessible::Relation bezug)
        : QAccessibleWidget(steuerelement, rolle)
        , m_bezug(bezug)
    { }

    QString text(QAccessible::Text t) const override
    {
        QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            text = Gesteuert()->text();
        return text;
    }

    QList<Bezug> relations(QAccessible::Relation match) const override
    {
        QList<Bezug> bezuege = QAccessibleWidget::relations(match);
        if (match & m_bezug) {
            for (QObject *anderes : qvariant_cast<QObjectList>(widget()->property(Gegenueber)))
                bezuege.append({QAccessible::queryAccessibleInterface(anderes), m_bezug});
        }
        return bezuege;
    }

protected:
    Steuerelement *Gesteuert() const { return static_cast<Steuerelement *>(widget()); }

private:
    const QAccessible::Relation m_bezug;
};

class Knopf final : public Benannt<QPushButton> {
public:
    explicit Knopf(QPushButton *knopf)
        : Benannt(knopf, QAccessible::Button, QAccessible::Label)
    { }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            Gesteuert()->click();
        else
            QAccessibleWidget::doAction(action);
    }
};

class Schild final : public Benannt<QLabel> {
public:
    explicit Schild(QLabel *label)
        : Benannt(label, QAccessible::StaticText, QAccessible::Labelled)
    { }
};

QAccessibleInterface *Fabrik(const QString &, QObject *object)
{
    if (!object || !object->property(Gegenueber).isValid())
        return nullptr;
    if (auto *knopf = qobject_cast<QPushButton *>(object))
        return new Knopf(knopf);
    if (auto *label = qobject_cast<QLabel *>(object))
        return new Schild(label);
    return nullptr;
}

} // namespace

void BeschrifteKnoepfe(QLabel *beschriftung, const QList<QPushButton *> &knoepfe)
{
    QAccessible::installFactory(Fabrik);
    QObjectList liste;
    for (QPushButton *knopf : knoepfe) {
        knopf->setProperty(Gegenueber, QVariant::fromValue(QObjectList{beschriftung}));
        liste.append(knopf);
    }
    beschriftung->setProperty(Gegenueber, QVariant::fromValue(liste));
    // Qt may have made and kept an interface for a widget while it was built; the next question
    // then gets one of ours.
    const QObjectList alle = liste + QObjectList{beschriftung};
    for (QObject *widget : alle) {
        QAccessibleInterface *schnittstelle = QAccessible::queryAccessibleInterface(widget);
        if (!dynamic_cast<Knopf *>(schnittstelle) && !dynamic_cast<Schild *>(schnittstelle))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(schnittstelle));
    }
}
