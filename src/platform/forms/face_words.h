#pragma once

#include <string_view>

/// Words that a face shows or says in addition to its model's.
namespace awizo::words {

// Buttons of a message box.
inline constexpr std::string_view ok = "ОК";
inline constexpr std::string_view yes = "&Да";
inline constexpr std::string_view no = "&Нет";

// Names for screen readers.
inline constexpr std::string_view spinUp = "Больше";
inline constexpr std::string_view spinDown = "Меньше";
inline constexpr std::string_view drives = "Диск";
inline constexpr std::string_view folders = "Папки";
inline constexpr std::string_view files = "Файлы";

/// Tip of the mark that shows whether a picker holds a value.
inline constexpr std::string_view hasValue = "Указано или нет; то же делает пробел";

}  // namespace awizo::words
