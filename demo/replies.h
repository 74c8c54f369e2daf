#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace awizo::demo {

/// The reply documents of the service, made from the files of one folder, all UTF-8:
///   partner-info.xml      the whole reply about the one buyer that the service knows
///   catalogue.xml         Document-ProductCatalogue
///   delivery-places.xml   Document-LocalizationsCatalog
///   order.xml             Document-Order, the one order that is waiting
/// The files are read again for each reply. If one is missing, the service doesn't have that
/// document. Every procedure takes the text of the request and returns the text of the reply.
class Replies {
 public:
  explicit Replies(std::filesystem::path dataFolder) : dataFolder_(std::move(dataFolder)) {}

  std::string partnerInfo(std::string_view request) const;
  std::string productCatalogue(std::string_view request) const;
  std::string deliveryPlaces(std::string_view request) const;
  // Hands out the waiting order. A request with `deleteafter` "true" takes it away.
  std::string order(std::string_view request);
  void putOrderBack();

 private:
  std::optional<std::string> dataFile(const char* name) const;
  std::optional<std::string> ownPartnerIln() const;
  std::string catalogueReply(const char* root, const char* file, const std::string& refusal) const;

  std::filesystem::path dataFolder_;
  std::mutex orderMutex_;
  bool orderHandedOut_ = false;
};

/// The reply to a document that was posted: `status` is "OK" or the text of the error.
std::string submissionReply(std::string_view status);

}  // namespace awizo::demo
