#include "skript/zufall.h"

namespace tabulon::skript {

std::uint32_t Zufall::unter(std::uint32_t grenze) {
    if (grenze == 0) {
        return 0;
    }
    // 2^32 mod grenze, computed in 32 bits: the outputs below it are the incomplete block.
    const std::uint32_t rest = (0u - grenze) % grenze;
    while (true) {
        const auto x = static_cast<std::uint32_t>(erzeuger());
        if (x >= rest) {
            return x % grenze;
        }
    }
}

} // namespace tabulon::skript
