#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats/upper/checking/document_check.h"
#include "support/test_editor.h"

namespace awizo::test {

/// A despatch advice of one line in one package; line breaks precede the elements that tests break,
/// so that findings have different lines.
inline const std::string soundAdvice =
    "<Document-DespatchAdvice><DespatchAdvice-Header>\n"                       // 1
    "<DespatchAdviceNumber>WZ-7</DespatchAdviceNumber>\n"                      // 2
    "<DespatchAdviceDate>2026-11-02</DespatchAdviceDate>\n"                    // 3
    "<EstimatedDeliveryDate>2026-12-01</EstimatedDeliveryDate>\n"              // 4
    "<BuyerOrderNumber>ORD-7</BuyerOrderNumber></DespatchAdvice-Header>\n"     // 5
    "<DespatchAdvice-Parties><Buyer><ILN>9520002000019</ILN></Buyer>\n"        // 6
    "<Seller><ILN>9520001000010</ILN></Seller></DespatchAdvice-Parties>\n"     // 7
    "<DespatchAdvice-Consignment><Packing-Sequence>\n"                         // 8
    "<PackageId>1</PackageId></Packing-Sequence>\n"                            // 9
    "</DespatchAdvice-Consignment><DespatchAdvice-Lines><Line><Line-Item>\n"   // 10
    "<EAN>4607000000116</EAN>\n"                                               // 11
    "<DespatchedQuantity>1.500</DespatchedQuantity>\n"                         // 12
    "</Line-Item></Line></DespatchAdvice-Lines></Document-DespatchAdvice>\n";  // 13

/// An order of one line.
inline const std::string soundOrder =
    "<Document-Order><Order-Header>\n"                  // 1
    "<OrderNumber>ORD-7</OrderNumber>\n"                // 2
    "<OrderDate>2026-11-02</OrderDate></Order-Header>"  // 3
    "<Order-Lines><Line><Line-Item>\n"                  // 3
    "<EAN>4607000000116</EAN>\n"                        // 4
    "<OrderedQuantity>1.500</OrderedQuantity>\n"        // 5
    "</Line-Item></Line></Order-Lines></Document-Order>";

/// The text with the first `from` replaced; there must be one.
inline std::string with(std::string text, std::string_view from, std::string_view to) {
  const std::size_t at = text.find(from);
  if (at == std::string::npos) throw std::runtime_error("no " + std::string(from));
  return text.replace(at, from.size(), to);
}

/// Somebody who checks files, in each of the locales.
class CheckingDesk : public testing::TestWithParam<const char*>, public TestSurroundings {
 protected:
  explicit CheckingDesk(const char* localeName) : TestSurroundings(localeName) {}
  CheckingDesk() : TestSurroundings(GetParam()) {}

  ReaderIdentity reader{"9520001000010", "9520002000019"};

  /// Findings in a file of these bytes, each as "12|element|text".
  std::vector<std::string> check(std::string_view bytes) {
    files.put("c:\\docs\\a.xml", bytes);
    std::vector<std::string> told;
    for (const Finding& finding : checkDocument(platform, "c:\\docs\\a.xml", reader)) {
      told.push_back(std::to_string(finding.line) + "|" + finding.element + "|" + finding.text);
    }
    return told;
  }
  /// A number as this locale shows it.
  std::string shown(std::string number) const {
    if (locale.facts().decimalSeparator == ",") std::ranges::replace(number, '.', ',');
    return number;
  }
};

}  // namespace awizo::test
