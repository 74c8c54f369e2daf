#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/xml.h"

namespace awizo {

/// A buyer whose file lies in the local folder.
struct Partner {
  std::string iln;
  std::string name;  ///< empty where the file doesn't tell it
};

/// What a local folder offers for work off line.
struct FolderContent {
  std::string seller;  ///< name of the user's firm
  std::string sellerILN;
  std::vector<Partner> partners;  ///< in the order of their files' names
  std::string missing;            ///< what keeps from working, in Russian; empty where nothing does
};

/// Looks into the folder of this classic path, "" where none is set. Raises nothing.
FolderContent lookIntoFolder(const Xml& xml, Files& files, std::string_view folder);

/// The name by which the control looks for such a file in the local folder, whatever the case of
/// its letters; empty for a document, which may have any name.
std::string nameInFolder(std::string_view file);

/// The buyer's ILN in a saved document of this classic path; empty where the file is no despatch
/// advice. Raises nothing.
std::string buyerOfDocument(const Xml& xml, Files& files, std::string_view path);

}  // namespace awizo
