#pragma once

#include <httplib.h>

#include <filesystem>
#include <string>
#include <vector>

#include "demo/demo_service.h"
#include "support/files/temporary_folder.h"

namespace awizo::demo {

inline constexpr const char* partnerInfoPath = "/vird/Partners.aspx?format=xml";
inline constexpr const char* cataloguePath = "/vird//GetDocument.aspx";
inline constexpr const char* placesPath = "/vird/Dictionary.aspx";
inline constexpr const char* orderPath = "/vird/portal/OrderData.aspx";
inline constexpr const char* uploadPath = "/vird/portal/Upload.aspx";

inline constexpr const char* partnerInfoRequest =
    "<partners-request><partner-iln>9520002000019</partner-iln><info-name>INFO</info-name>"
    "</partners-request>";
inline constexpr const char* catalogueRequest =
    "<document-request><partner-iln>9520002000019</partner-iln><type>PRODUCTCATALOG</type>"
    "<version>VIRDV3R1</version><date-from/><direction>OUT</direction></document-request>";
inline constexpr const char* placesRequest =
    "<dictionary-request><partner-iln>9520002000019</partner-iln><type>PARTYINFORMATION</type>"
    "<version>VIRDV0R0</version><date-from/></dictionary-request>";
inline constexpr const char* orderRequest =
    "<order-request><deleteafter>true</deleteafter></order-request>";

/// A service on a free port, and a client of it.
class RunningService {
 public:
  /// Serves the project's own data, or that of `dataFolder`.
  explicit RunningService(const std::vector<std::string>& arguments = {});

  int port() const { return service_.port(); }
  std::string pageUrl() const { return service_.pageUrl(); }
  std::filesystem::path postedFolder() const { return temporary_.path() / "posted"; }
  std::vector<std::string> postedFiles() const;

  // Status and body of the reply to a POST; status -1 when none came.
  struct Reply {
    int status = -1;
    std::string body;
    std::string contentType;
  };
  Reply post(const std::string& path, const std::string& body,
             const httplib::Headers& headers = {}) const;
  Reply get(const std::string& path) const;
  void clearFaults() const;
  /// All bytes that come back for a POST, up to the end of the connection.
  std::string wireReply(const std::string& path, const std::string& body) const;
  /// The same for a request that is given byte for byte.
  std::string wireReply(const std::string& request) const;

 private:
  Options optionsFrom(std::vector<std::string> arguments) const;

  test::TemporaryFolder temporary_;
  DemoService service_;
};

}  // namespace awizo::demo
