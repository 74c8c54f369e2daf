#pragma once

#include <string_view>
#include <vector>

#include "formats/despatch_advice.h"
#include "papers/shipment.h"
#include "platform/files.h"
#include "session/record/editor.h"

namespace awizo {

/// What papers are made of.
struct PapersSource {
  DespatchAdvice advice;
  papers::Names names = {};
  std::vector<std::size_t> marked = {};  ///< numbers of the packages marked in the table
};

/// The document of the window as it will be sent, though its date of delivery may be missing still.
/// Raises the error of a document that can't be made.
PapersSource papersSource(const Editor& editor);

/// That of a saved document (a classic path), with the names that the local folder (a classic path,
/// empty for none) tells. Raises the error of a file that can't be read, error 5 for one that is no
/// despatch advice.
PapersSource papersSource(const Xml& xml, Files& files, std::string_view path,
                          std::string_view folder);

/// The names that the folder's files tell of these parties.
papers::Names namesInFolder(const Xml& xml, Files& files, std::string_view folder,
                            const AdviceHeader& header);

}  // namespace awizo
