// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Build tool: reads the program's square PNG pictures and writes a C++ source that holds their
// pixels in premultiplied ARGB32, the form a window's picture takes on the screen, for
// Symbol.h. Run by the build, never installed.
//   symbolpixel OUT.cpp PICTURE.png...
#include <QImage>

#include <cstdio>
#include <fstream>
#include <string>

int main(int argc, char *argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: symbolpixel OUT.cpp PICTURE.png...\n");
        return 2;
    }
    std::ofstream out(argv[1]);
    out << "// Written by symbolpixel from the program's PNG pictures at build time.\n"
           "#include \"app/Symbol.h\"\n\nnamespace {\n";
    std::string liste;
    for (int i = 2; i < argc; ++i) {
        const QImage bild
            = QImage(QString::fromLocal8Bit(argv[i])).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (bild.isNull() || bild.width() != bild.height()) {
            std::fprintf(stderr, "symbolpixel: %s is no square picture\n", argv[i]);
            return 1;
        }
        const std::string name = "pixel" + std::to_string(i - 1);
        out << "constexpr std::uint32_t " << name << "[] = {";
        for (int y = 0; y < bild.height(); ++y) {
            const auto *zeile = reinterpret_cast<const std::uint32_t *>(bild.constScanLine(y));
            for (int x = 0; x < bild.width(); ++x) {
                char wert[32];
                std::snprintf(wert, sizeof wert, "%s0x%08xu,", x % 8 == 0 ? "\n    " : " ", zeile[x]);
                out << wert;
            }
        }
        out << "\n};\n";
        liste += "    {" + std::to_string(bild.width()) + ", " + name + "},\n";
    }
    out << "constexpr SymbolBild bilder[] = {\n"
        << liste << "};\n} // namespace\n\n"
        << "const std::span<const SymbolBild> SymbolBilder(bilder);\n";
    out.close();
    return out ? 0 : 1;
}
