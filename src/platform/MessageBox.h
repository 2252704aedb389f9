// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A message to the user, who reads it and closes it.
#pragma once

#include "platform/Service.h"

#include <string_view>

namespace platform {

class MessageService : public Service {
public:
    virtual void show(std::string_view text) = 0;
};

// Shows the text through the installed service; nobody sees it while none is installed.
void MessageBox(std::string_view text);

} // namespace platform
