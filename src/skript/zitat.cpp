#include "skript/zitat.h"

namespace tabulon::skript {

std::string zitiert(std::string_view text) {
    static constexpr char hex[] = "0123456789abcdef";
    std::string aus;
    aus.reserve(text.size() + 2);
    aus.push_back('"');
    for (const char c : text) {
        const auto b = static_cast<unsigned char>(c);
        switch (c) {
        case '\\':
            aus += "\\\\";
            break;
        case '"':
            aus += "\\\"";
            break;
        case '\n':
            aus += "\\n";
            break;
        case '\t':
            aus += "\\t";
            break;
        default:
            if (b < 0x20 || b == 0x7F) {
                aus += "\\x";
                aus.push_back(hex[b >> 4]);
                aus.push_back(hex[b & 0xF]);
            } else {
                aus.push_back(c);
            }
        }
    }
    aus.push_back('"');
    return aus;
}

} // namespace tabulon::skript
