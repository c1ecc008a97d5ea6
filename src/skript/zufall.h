#pragma once
// The driver's random source. With a seed, the same script gives the same random matrices on
// every machine: std::mt19937 is defined to the bit by the standard, and the reduction to a
// bound is done here, because std::uniform_int_distribution differs between libraries.

#include <cstdint>
#include <random>

namespace tabulon::skript {

class Zufall {
public:
    explicit Zufall(std::uint32_t saat) : erzeuger(saat) {}

    // Uniform from 0 to grenze - 1 (0 for grenze 0). Rejection sampling: outputs from the top
    // partial block of 2^32 are drawn again, so every value below grenze is equally likely.
    std::uint32_t unter(std::uint32_t grenze);

private:
    std::mt19937 erzeuger;
};

} // namespace tabulon::skript
