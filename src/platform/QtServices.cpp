// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtServices.h"

#include "QtText.h"

#include <QApplication>
#include <QFontDatabase>
#include <QMessageBox>

namespace platform {

void QtBeep::beep()
{
    QApplication::beep();
}

void QtMessageBox::show(std::string_view text)
{
    QMessageBox box(QMessageBox::NoIcon, QString(), qs(text), QMessageBox::Ok, QApplication::activeWindow());
    box.exec();
}

void QtFonts::load()
{
    if (!m_loaded) {
        m_families = QFontDatabase::families();
        m_loaded = true;
    }
}

int QtFonts::count()
{
    load();
    return static_cast<int>(m_families.size());
}

std::string QtFonts::at(int index)
{
    load();
    return index >= 0 && index < m_families.size() ? utf8(m_families.at(index)) : std::string();
}

QtServices::QtServices()
{
    install(&m_beep);
    install(&m_messages);
    install(&m_fonts);
}

QtServices::~QtServices()
{
    install(static_cast<BeepService *>(nullptr));
    install(static_cast<MessageService *>(nullptr));
    install(static_cast<FontService *>(nullptr));
}

QString fontFamily(std::string_view name)
{
    if (name == "system" || name == "System")
        return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    return qs(name);
}

QFont font(std::string_view name, qreal pointSize)
{
    QFont f(fontFamily(name));
    f.setPointSizeF(pointSize);
    return f;
}

} // namespace platform
