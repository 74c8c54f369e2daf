#pragma once

#include "assistants/assistance.h"
#include "assistants/distribution.h"

namespace awizo {

/// What the user wants to be packed, and how.
struct DistributionChoice {
  std::vector<int> lines = {};     ///< rows of the table of lines
  std::vector<int> packages = {};  ///< rows of the table of packages
  Spread spread = Spread::evenly;
  Thousandths each = 0;  ///< for Spread::soMany
};

/// How each of the lines goes in that isn't packed wholly. What lies in packages stays there.
std::vector<LinePlan> plansOf(const Editor& editor, const DistributionChoice& choice);

/// Why something of the line doesn't go in, in Russian; empty where all does.
std::string leftWords(const Editor& editor, const LinePlan& plan);

/// "Строка 17 (Кофе)".
std::string namedLine(const Editor& editor, int row);

/// The quantity that the text says; 0 where it is no number.
Thousandths thousandthsIn(const Conversions& conversions, const std::string& text);

/// A quantity as the user would type it, without zeros at its end.
std::string quantityWords(const Conversions& conversions, Thousandths quantity);

/// Where there is no plan at all.
inline constexpr std::string_view nothingToPack = "Раскладывать нечего.";

/// Puts the lines into packages, each through its dialog; all together are one step of the user's,
/// of this name. A line that the control refuses is left as it was, and the next follows. The
/// report counts the lines that have a part to be put somewhere, and names what stays unpacked too.
AssistantReport distribute(const Assistance& with, const DistributionChoice& choice,
                           const std::vector<LinePlan>& plans, const GoOn& goOn,
                           const std::string& step = "раскладка по упаковкам");

/// What the user should know of it; empty where all was done.
std::string distributionWords(const AssistantReport& report);

}  // namespace awizo
