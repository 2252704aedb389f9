// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Answering a modal dialog from a test: the answer is posted before the click that opens
// the dialog, and runs inside the dialog's own event loop once it is up.
#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>

// Runs `answer` on the modal dialog as soon as one is open. If none comes up within a few
// seconds the answer is dropped, and the test's own checks fail instead of hanging.
inline void whenModal(std::function<void(QWidget *)> answer, int triesLeft = 500)
{
    QTimer::singleShot(triesLeft == 500 ? 0 : 10, qApp, [answer = std::move(answer), triesLeft]() mutable {
        if (QWidget *dialog = QApplication::activeModalWidget())
            answer(dialog);
        else if (triesLeft > 0)
            whenModal(std::move(answer), triesLeft - 1);
    });
}

// The control of that object name, such as "Übertrag_1", or null.
template<typename T>
T *child(QWidget *parent, const QString &name)
{
    return parent ? parent->findChild<T *>(name) : nullptr;
}
