// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Anker.h"

#include <QEvent>
#include <QWidget>

Anker::Anker(QWidget *container, QSize entwurf)
    : QObject(container)
    , m_container(container)
    , m_entwurf(entwurf)
{
    container->installEventFilter(this);
}

void Anker::Setze(QWidget *control, QRect geometrie, unsigned locks)
{
    m_eintraege.append({control, geometrie, locks});
    Anwenden(m_eintraege.constLast(), m_container->size());
}

bool Anker::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_container && event->type() == QEvent::Resize) {
        for (const Eintrag &eintrag : std::as_const(m_eintraege))
            Anwenden(eintrag, m_container->size());
    }
    return QObject::eventFilter(watched, event);
}

namespace {

// One axis: where the control starts and how long it is, given the growth of the container.
std::pair<int, int> Achse(int anfang, int laenge, int wachstum, bool vorn, bool hinten)
{
    if (vorn && hinten)
        return {anfang, laenge + wachstum};
    if (hinten)
        return {anfang + wachstum, laenge};
    return {anfang, laenge};
}

} // namespace

void Anker::Anwenden(const Eintrag &eintrag, QSize jetzt) const
{
    if (!eintrag.control)
        return;
    // Before the container has its first size there is nothing to follow yet.
    const QSize groesse = jetzt.isEmpty() ? m_entwurf : jetzt;
    const QRect &g = eintrag.geometrie;
    const auto [x, w] = Achse(g.x(), g.width(), groesse.width() - m_entwurf.width(), eintrag.locks & LockLeft,
                              eintrag.locks & LockRight);
    const auto [y, h] = Achse(g.y(), g.height(), groesse.height() - m_entwurf.height(), eintrag.locks & LockTop,
                              eintrag.locks & LockBottom);
    eintrag.control->setGeometry(x, y, std::max(w, 0), std::max(h, 0));
}
