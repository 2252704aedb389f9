# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later

# A Debian package of the installed program: `cpack -G DEB` in the build directory. Its
# dependencies are read from the built program by dpkg-shlibdeps.
set(CPACK_PACKAGE_NAME tafelkasse)
set(CPACK_PACKAGE_VENDOR "Tafelkasse developers")
set(CPACK_PACKAGE_CONTACT "Tafelkasse developers <tafelkasse@tafelkasse.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Money ledger of a Mah Jongg evening for four players")
set(CPACK_PACKAGE_DESCRIPTION
    "Tafelkasse settles the money of four players of Mah Jongg game by game and shows every\nplayer's score, turnover and balance on a sheet that can be printed. German user interface.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://tafelkasse.org/")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSES/GPL-3.0-or-later.txt)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt's own dialogs in German, as the rest of the program.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_GENERATOR DEB)
include(CPack)
