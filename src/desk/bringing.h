#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "desk/question.h"
#include "platform/files.h"

namespace awizo {

/// A file from elsewhere that the user wants to have in the local folder.
struct BroughtFile {
  std::string name;
  std::string bytes;
};

/// Where it is afterwards.
struct BroughtPlace {
  std::string path;      ///< classic; empty where the user keeps what is there
  bool isNamed = false;  ///< the control finds it by its name: it is no document to open
};

/// Puts the file into the folder of this classic path. One that the control finds by its name, the
/// seller's or a partner's, takes the other's place, asked first where they differ; any other
/// stands beside what is there, under a name of its own. Raises the errors of Files.
BroughtPlace bring(Files& files, std::string_view folder, const BroughtFile& file,
                   const std::function<Choice(const Question&)>& ask);

}  // namespace awizo
