// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MessageBox.h"

namespace platform {

void MessageBox(std::string_view text)
{
    if (MessageService *service = Installed<MessageService>::current())
        service->show(text);
}

} // namespace platform
