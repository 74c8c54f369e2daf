#pragma once

#include "assistants/assistance.h"
#include "assistants/package_plan.h"

namespace awizo {

/// Adds the packages one by one through the package dialog, each with the firm's next number where
/// there are any. All together are one step of the user's. It ends at the first one that the
/// control refuses, since what is wrong with one is wrong with the next; those before it stay.
AssistantReport addPackages(const Assistance& with, const PackagePlan& plan, const GoOn& goOn);

/// What the user should know of it; empty where all was done.
std::string addingWords(const AssistantReport& report);

}  // namespace awizo
