#include "formats/upper/checking/despatch_advice_check.h"

#include <set>

#include "formats/despatch_advice_elements.h"
#include "formats/despatch_advice_paths.h"
#include "formats/upper/checking/ignored_elements.h"
#include "formats/upper/checking/line_findings.h"
#include "formats/upper/checking/package_findings.h"
#include "formats/upper/checking/scratch_editor.h"
#include "formats/upper/checking/stopped_reading.h"
#include "formats/upper/reading/despatch_advice_reader.h"
#include "formats/upper/reading/line_reader.h"
#include "service/transport.h"

namespace awizo {
namespace {

void append(std::vector<Finding>& findings, const std::vector<Finding>& more) {
  findings.insert(findings.end(), more.begin(), more.end());
}

/// The element at the path, or the nearest above it that is there.
XmlNode nearest(XmlDocument& document, std::string path) {
  while (true) {
    if (const XmlNode node = document.node().selectSingle(path)) return node;
    path.erase(path.rfind('/'));
  }
}

/// One reading of the document, and what it finds.
class DespatchAdviceCheck {
 public:
  explicit DespatchAdviceCheck(const Platform& platform)
      : scratch_(platform), document_(platform.xml.createDocument()) {}

  ReadingResult read(std::string_view path, const ReaderIdentity& reader) {
    scratch_.session.SellerILN = reader.sellerILN;
    scratch_.session.BuyerILN = reader.buyerILN;
    return readDespatchAdvice(scratch_.editor, document_, path);
  }

  std::vector<Finding> findings(const ReadingResult& result) {
    const DocumentMap map(document_.within());
    std::vector<Finding> all = packageFindings(document_.within(), map);
    for (const std::string& path : result.missing) all.push_back(missing(path));
    std::size_t end = map.places().size();
    if (result.error) {
      all.push_back(stoppedReading(map, document_, *result.error));
      end = map.numberOf(document_.last());
    }
    const std::set<std::string> written = writtenKinds();
    append(all, ignoredElements(map, document_, end,
                                [&](const std::string& kind) { return written.contains(kind); }));
    append(all, lines(map));
    return all;
  }

  /// The party named at the path, and who should be.
  Finding foreignParty(std::string_view path, std::string_view who, const std::string& named,
                       const std::string& expected) {
    const std::string whole(path);
    std::string text = "ILN " + std::string(who);
    text += named.empty() ? " не указан" : " " + quoted(named);
    if (!expected.empty()) text += ", а должен быть " + quoted(expected);
    return {nearest(document_.within(), whole).line(), belowRoot(whole),
            text + ": документ будет отвергнут"};
  }

 private:
  Finding missing(const std::string& path) {
    return {nearest(document_.within(), path).line(), belowRoot(path),
            "нет обязательного значения: документ будет назван неполным"};
  }

  std::vector<Finding> lines(const DocumentMap& map) {
    LineFindings lines(scratch_.editor, map, despatchLineSources());
    std::int16_t row = 0;
    try {
      const std::string path = std::string(despatchLinesPath) + "/Line";
      for (const XmlNode& line : document_.within().node().selectAll(path)) {
        if (row == scratch_.session.LineCount) break;
        lines.add(line, ++row);
      }
    } catch (const RunTimeError&) {
      // The reading stopped at this row, which is reported already.
    }
    return lines.found();
  }

  ScratchEditor scratch_;
  TracedDocument document_;
};

const std::string& knownOr(const std::string& known, const std::string& other) {
  return known.empty() ? other : known;
}

}  // namespace

ReaderIdentity intendedReader(XmlDocument& document) {
  return {GetNodeValue(document.node(), sellerIlnPath, true),
          GetNodeValue(document.node(), buyerIlnPath, true)};
}

std::vector<Finding> checkDespatchAdvice(const Platform& platform, std::string_view path,
                                         const ReaderIdentity& intended,
                                         const ReaderIdentity& reader) {
  // A party's number in the document is taken for one that isn't known, so that it is accepted.
  ReaderIdentity expected{knownOr(reader.sellerILN, intended.sellerILN),
                          knownOr(reader.buyerILN, intended.buyerILN)};
  const bool namesSeller = !expected.sellerILN.empty();
  const bool namesBuyer = !expected.buyerILN.empty();
  std::vector<Finding> findings;
  // After a refusal the rest is reported as if there had been none.
  while (true) {
    DespatchAdviceCheck check(platform);
    const ReadingResult result = check.read(path, expected);
    const bool isLast = result.outcome != ReadingOutcome::foreignSeller &&
                        result.outcome != ReadingOutcome::foreignBuyer;
    if (result.outcome == ReadingOutcome::foreignSeller || (isLast && !namesSeller)) {
      findings.push_back(
          check.foreignParty(sellerIlnPath, "продавца", intended.sellerILN, expected.sellerILN));
      expected.sellerILN = intended.sellerILN;
    }
    if (result.outcome == ReadingOutcome::foreignBuyer || (isLast && !namesBuyer)) {
      findings.push_back(
          check.foreignParty(buyerIlnPath, "покупателя", intended.buyerILN, expected.buyerILN));
      expected.buyerILN = intended.buyerILN;
    }
    if (!isLast) continue;
    append(findings, check.findings(result));
    return findings;
  }
}

}  // namespace awizo
