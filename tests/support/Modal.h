// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Answering a modal dialog from a test: the answer waits, polling, for the dialog that an action
// opens and runs inside the dialog's own event loop. A dialog opens on a click, a menu item or a
// shortcut before these return; so when the action has returned and no answer ran, no dialog came.
#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>

// Runs `act`, and `answer` on the modal dialog that `act` opens; whether the answer ran. A dialog that
// an answer's failed check left open is closed, so that the test fails instead of hanging.
[[nodiscard]] inline bool answered(const std::function<void(QWidget *)> &answer, const std::function<void()> &act)
{
    bool ran = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            poll.stop(), ran = true;
            answer(dialog);
            if (QTest::currentTestFailed())
                dialog->close();
        }
    });
    poll.start(1);
    act();
    return ran;
}

// The test fails at once when the dialog never came up and the answer never ran.
#define ANSWER_MODAL(act, ...) QVERIFY2(answered(__VA_ARGS__, act), "no dialog came up to be answered")

// The control of that object name, such as "Übertrag_1", or null.
template<typename T>
T *child(QWidget *parent, const QString &name)
{
    return parent ? parent->findChild<T *>(name) : nullptr;
}
