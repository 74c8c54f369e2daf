#pragma once

#include <cstdint>

namespace awizo {

/// Key codes as the platform numbers them. Letters and digits have the codes of their capital
/// letters and digits.
namespace keys {

inline constexpr std::int16_t backspace = 8;
inline constexpr std::int16_t tab = 9;
inline constexpr std::int16_t enter = 13;
inline constexpr std::int16_t shift = 16;
inline constexpr std::int16_t escape = 27;
inline constexpr std::int16_t blank = 32;
inline constexpr std::int16_t pageUp = 33;
inline constexpr std::int16_t pageDown = 34;
inline constexpr std::int16_t end = 35;
inline constexpr std::int16_t home = 36;
inline constexpr std::int16_t left = 37;
inline constexpr std::int16_t up = 38;
inline constexpr std::int16_t right = 39;
inline constexpr std::int16_t down = 40;
inline constexpr std::int16_t insert = 45;
inline constexpr std::int16_t remove = 46;
inline constexpr std::int16_t f1 = 112;
inline constexpr std::int16_t f2 = 113;
inline constexpr std::int16_t f3 = 114;
inline constexpr std::int16_t f6 = 117;
inline constexpr std::int16_t f7 = 118;
inline constexpr std::int16_t f8 = 119;
inline constexpr std::int16_t f9 = 120;

/// The character code that KeyPress gets for a key, 0 for a key that has none. Enter, Escape and
/// Backspace have one. Codes of 256 and more are no keys of a keyboard but characters typed in
/// another way, and are their own character code.
std::int16_t characterOf(std::int16_t code, bool shifted);

}  // namespace keys
}  // namespace awizo
