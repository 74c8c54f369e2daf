#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/libxml2/libxml2.h"
#include "support/programs/conversation.h"
#include "support/programs/demo_service.h"
#include "support/programs/workplace.h"

namespace awizo::test {

inline constexpr std::string_view today = "2026-11-21";
inline constexpr std::string_view expectedDelivery = "2026-11-25";  ///< by the waiting order
inline constexpr std::string_view deliveryPlace = "9520002001016";

/// A supplier's machine: the local folder, and a way to start the editor there. The clock is fixed
/// at 21 November 2026, 10:15. When it goes, every despatch advice that was posted or saved there
/// must fit the schema of written documents.
class Supplier {
 public:
  explicit Supplier(std::string locale = "ru_RU") : locale_(std::move(locale)) {}
  ~Supplier();
  Supplier(const Supplier&) = delete;
  Supplier& operator=(const Supplier&) = delete;

  /// Starts the editor for off-line work; nothing is shown yet.
  Conversation startOffLine(const std::vector<std::string>& more = {},
                            const std::vector<std::string>& launcher = {}) const;
  /// Starts it in the service's page.
  Conversation startOnLine(const DemoService& service,
                           const std::vector<std::string>& more = {}) const;

  /// A number as the screen shows it: "1234.500" with the locale's separator.
  std::string number(std::string_view withPoint) const;

  Workplace place;

 private:
  std::vector<std::string> options() const;

  std::string locale_;
};

/// A document from outside, read by paths.
class ReadDocument {
 public:
  explicit ReadDocument(std::string_view xml);
  /// Text of the first node; "(none)" where there is none.
  std::string text(std::string_view path) const;
  std::size_t count(std::string_view path) const;
  std::string xml() const { return document_->root().xml(); }

 private:
  std::unique_ptr<XmlDocument> document_;
};

// What users do often.

/// Fills in what the order's header lacks for sending.
void completeHeader(Conversation& editor, std::string_view number = "ТН/1");
/// Adds a top package, or one within the package at that row of the list of parents.
void addPackage(Conversation& editor, std::string_view description, std::string_view serial,
                int parent = -1);
/// Opens the line and puts this much of it into the package of that description; without a
/// quantity, what the small dialog offers.
void packLine(Conversation& editor, int row, std::string_view package,
              std::string_view quantity = "");

/// The file dialog is open for saving a document that has a header and no line.
void openSaving(Conversation& editor);
void openSavingAgain(Conversation& editor);
/// Names the file in the dialog and saves.
void saveAs(Conversation& editor, const std::string& path);

/// Names of serials with right check digits.
inline constexpr std::string_view serials[] = {"035200010000000016", "035200010000000023",
                                               "035200010000000030"};

}  // namespace awizo::test
