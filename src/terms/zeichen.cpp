#include "terms/zeichen.h"

#include <cstddef>

namespace tabulon {

namespace {

struct CodePunkt {
    char32_t wert = 0;
    std::size_t laenge = 1;
    bool gueltig = false;
};

// Decodes the code point at `pos`. Overlong forms, surrogates and values beyond U+10FFFF are
// malformed: the first byte then stands alone and the next byte starts afresh.
CodePunkt dekodiere(std::string_view text, std::size_t pos) {
    const auto b0 = static_cast<unsigned char>(text[pos]);
    if (b0 < 0x80) {
        return {b0, 1, true};
    }
    std::size_t laenge = 0;
    char32_t wert = 0;
    char32_t minimum = 0;
    if ((b0 & 0xE0) == 0xC0) {
        laenge = 2;
        wert = b0 & 0x1F;
        minimum = 0x80;
    } else if ((b0 & 0xF0) == 0xE0) {
        laenge = 3;
        wert = b0 & 0x0F;
        minimum = 0x800;
    } else if ((b0 & 0xF8) == 0xF0) {
        laenge = 4;
        wert = b0 & 0x07;
        minimum = 0x10000;
    } else {
        return {b0, 1, false};
    }
    if (pos + laenge > text.size()) {
        return {b0, 1, false};
    }
    for (std::size_t i = 1; i < laenge; ++i) {
        const auto b = static_cast<unsigned char>(text[pos + i]);
        if ((b & 0xC0) != 0x80) {
            return {b0, 1, false};
        }
        wert = (wert << 6) | (b & 0x3F);
    }
    if (wert < minimum || wert > 0x10FFFF || (wert >= 0xD800 && wert <= 0xDFFF)) {
        return {b0, 1, false};
    }
    return {wert, laenge, true};
}

void kodiere(char32_t c, std::string& aus) {
    if (c < 0x80) {
        aus += static_cast<char>(c);
    } else if (c < 0x800) {
        aus += static_cast<char>(0xC0 | (c >> 6));
        aus += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        aus += static_cast<char>(0xE0 | (c >> 12));
        aus += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        aus += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        aus += static_cast<char>(0xF0 | (c >> 18));
        aus += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        aus += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        aus += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool zwischen(char32_t c, char32_t von, char32_t bis) {
    return c >= von && c <= bis;
}

// Code points that never start a character of their own: combining marks of the Latin, Greek,
// Cyrillic, Hebrew, Arabic and Indic blocks, the joiners, variation selectors, emoji modifiers
// and tags.
bool verbindet(char32_t c) {
    return zwischen(c, 0x0300, 0x036F) || zwischen(c, 0x0483, 0x0489) ||
           zwischen(c, 0x0591, 0x05BD) || c == 0x05BF || zwischen(c, 0x05C1, 0x05C2) ||
           zwischen(c, 0x05C4, 0x05C5) || c == 0x05C7 || zwischen(c, 0x0610, 0x061A) ||
           zwischen(c, 0x064B, 0x065F) || c == 0x0670 || zwischen(c, 0x06D6, 0x06DC) ||
           zwischen(c, 0x06DF, 0x06E4) || zwischen(c, 0x06E7, 0x06E8) ||
           zwischen(c, 0x06EA, 0x06ED) || zwischen(c, 0x0900, 0x0903) ||
           zwischen(c, 0x093A, 0x094F) || zwischen(c, 0x0951, 0x0957) ||
           zwischen(c, 0x0962, 0x0963) || zwischen(c, 0x1AB0, 0x1AFF) ||
           zwischen(c, 0x1DC0, 0x1DFF) || zwischen(c, 0x200C, 0x200D) ||
           zwischen(c, 0x20D0, 0x20FF) || zwischen(c, 0xFE00, 0xFE0F) ||
           zwischen(c, 0xFE20, 0xFE2F) || zwischen(c, 0x1F3FB, 0x1F3FF) ||
           zwischen(c, 0xE0020, 0xE007F) || zwischen(c, 0xE0100, 0xE01EF);
}

bool regionalIndikator(char32_t c) {
    return zwischen(c, 0x1F1E6, 0x1F1FF);
}

bool piktogramm(char32_t c) {
    return zwischen(c, 0x2300, 0x23FF) || zwischen(c, 0x2600, 0x27BF) ||
           zwischen(c, 0x2B00, 0x2BFF) || zwischen(c, 0x1F000, 0x1FAFF);
}

// Upper-case partner in a block where capital and small letter alternate; the capital always
// precedes its small letter.
char32_t paar(char32_t c, bool grossGerade) {
    const bool gerade = (c % 2) == 0;
    return gerade == grossGerade ? c : c - 1;
}

// The one-to-one upper-case mapping of the letters that keyboards and input methods type:
// Latin-1, Latin Extended-A, Latin Extended Additional (Vietnamese), Greek, Cyrillic, Armenian
// and the fullwidth Latin letters. Every other code point stays as it is; that only changes how
// a token that the syntax check rejects anyway looks, because only "a" ... "z", the dotless "ı"
// and the long "ſ" become names.
char32_t einfachGross(char32_t c) {
    if (zwischen(c, 'a', 'z')) {
        return c - 0x20;
    }
    if (c == 0x00B5) {
        return 0x039C;
    }
    if (zwischen(c, 0x00E0, 0x00FE) && c != 0x00F7) {
        return c - 0x20;
    }
    if (c == 0x00FF) {
        return 0x0178;
    }
    if (c == 0x0131) {
        return 'I';
    }
    if (c == 0x017F) {
        return 'S';
    }
    if (zwischen(c, 0x0100, 0x012F) || zwischen(c, 0x0132, 0x0137) || zwischen(c, 0x014A, 0x0177) ||
        zwischen(c, 0x1E00, 0x1E95) || zwischen(c, 0x1EA0, 0x1EFF) || zwischen(c, 0x0460, 0x0481) ||
        zwischen(c, 0x048A, 0x04BF) || zwischen(c, 0x04D0, 0x052F)) {
        return paar(c, true);
    }
    if (zwischen(c, 0x0139, 0x0148) || zwischen(c, 0x0179, 0x017E) || zwischen(c, 0x04C1, 0x04CE)) {
        return paar(c, false);
    }
    switch (c) {
    case 0x03AC:
        return 0x0386;
    case 0x03AD:
    case 0x03AE:
    case 0x03AF:
        return c - 0x25;
    case 0x03C2:
        return 0x03A3;
    case 0x03CC:
        return 0x038C;
    case 0x03CD:
    case 0x03CE:
        return c - 0x3F;
    case 0x04CF:
        return 0x04C0;
    default:
        break;
    }
    if (zwischen(c, 0x03B1, 0x03CB) || zwischen(c, 0x0430, 0x044F) || zwischen(c, 0xFF41, 0xFF5A)) {
        return c - 0x20;
    }
    if (zwischen(c, 0x0450, 0x045F)) {
        return c - 0x50;
    }
    if (zwischen(c, 0x0561, 0x0586)) {
        return c - 0x30;
    }
    return c;
}

// The mappings that give more than one code point; nullptr for all others.
const char32_t* mehrfachGross(char32_t c) {
    switch (c) {
    case 0x00DF:
        return U"SS";
    case 0x0390:
        return U"\u0399\u0308\u0301";
    case 0x03B0:
        return U"\u03A5\u0308\u0301";
    case 0x0587:
        return U"\u0535\u0552";
    case 0xFB00:
        return U"FF";
    case 0xFB01:
        return U"FI";
    case 0xFB02:
        return U"FL";
    case 0xFB03:
        return U"FFI";
    case 0xFB04:
        return U"FFL";
    case 0xFB05:
    case 0xFB06:
        return U"ST";
    default:
        return nullptr;
    }
}

} // namespace

std::vector<std::string_view> zeichenZerlegen(std::string_view text) {
    std::vector<std::string_view> zeichen;
    // At most one character per byte: reserved at once, a long term is not copied again and
    // again while the vector grows.
    zeichen.reserve(text.size());
    std::size_t pos = 0;
    while (pos < text.size()) {
        const std::size_t anfang = pos;
        const CodePunkt erster = dekodiere(text, pos);
        pos += erster.laenge;
        if (erster.gueltig) {
            if (erster.wert == '\r' && pos < text.size() && text[pos] == '\n') {
                ++pos;
            } else if (erster.wert != '\r' && erster.wert != '\n') {
                bool regionalOffen = regionalIndikator(erster.wert);
                char32_t letzter = erster.wert;
                while (pos < text.size()) {
                    const CodePunkt naechster = dekodiere(text, pos);
                    const bool dazu =
                        naechster.gueltig && (verbindet(naechster.wert) ||
                                              (letzter == 0x200D && piktogramm(naechster.wert)) ||
                                              (regionalOffen && regionalIndikator(naechster.wert)));
                    if (!dazu) {
                        break;
                    }
                    // Regional indicators pair up: a third one starts a new flag.
                    regionalOffen = false;
                    letzter = naechster.wert;
                    pos += naechster.laenge;
                }
            }
        }
        zeichen.push_back(text.substr(anfang, pos - anfang));
    }
    return zeichen;
}

std::string grossGeschrieben(std::string_view zeichen) {
    std::string aus;
    std::size_t pos = 0;
    while (pos < zeichen.size()) {
        const CodePunkt cp = dekodiere(zeichen, pos);
        if (!cp.gueltig) {
            aus += zeichen[pos];
        } else if (const char32_t* mehrere = mehrfachGross(cp.wert)) {
            for (; *mehrere != 0; ++mehrere) {
                kodiere(*mehrere, aus);
            }
        } else {
            kodiere(einfachGross(cp.wert), aus);
        }
        pos += cp.laenge;
    }
    return aus;
}

} // namespace tabulon
