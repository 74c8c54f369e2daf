#include "random_user/outages.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace awizo::test {
namespace {

const std::vector<RunTimeError> diskErrors{errors::diskFull(), errors::permissionDenied(),
                                           errors::pathFileAccess(), errors::diskNotReady(),
                                           errors::deviceUnavailable()};

const std::vector<RunTimeError> requestErrors{errors::hostNotFound(), errors::downloadFailed(),
                                              errors::badCertificate(), errors::outOfMemory()};

}  // namespace

void Outages::change() {
  desk_.files.failAllReading(std::nullopt);
  desk_.files.failAllWriting(std::nullopt);
  if (dice_.percent(30)) desk_.files.failAllReading(dice_.pick(diskErrors));
  if (dice_.percent(50)) desk_.files.failAllWriting(dice_.pick(diskErrors));
}

bool Outages::isDiskError(std::string_view text) {
  return std::ranges::any_of(
      diskErrors, [text](const RunTimeError& error) { return error.description() == text; });
}

void Outages::failRequest() { desk_.http.fail(dice_.pick(requestErrors)); }

}  // namespace awizo::test
