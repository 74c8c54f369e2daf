#include "journal/taped_platform.h"

#include <algorithm>

#include "platform/forms/form.h"

namespace awizo::journal {
namespace {

class TapedRequest : public HttpRequest {
 public:
  /// Without a request of its own in a replay.
  TapedRequest(Tape& tape, std::unique_ptr<HttpRequest> real)
      : tape_(tape), real_(std::move(real)) {}

  void open(std::string_view method, std::string_view url) override {
    tape_.outcome(Source::openRequest, [&] { real().open(method, url); });
  }
  void setHeader(std::string_view name, std::string_view value) override {
    tape_.outcome(Source::setHeader, [&] { real().setHeader(name, value); });
  }
  void send(std::string_view body) override {
    tape_.request();
    tape_.outcome(Source::send, [&] { real().send(body); });
  }
  /// An order is handed out once, so that its reply must be on the disk at once.
  std::string responseText() override {
    std::string text = tape_.outcome(Source::reply, [&] { return real().responseText(); });
    tape_.flush();
    return text;
  }

 private:
  /// A replay that ends within an exchange has nothing to go on with.
  HttpRequest& real() {
    if (!real_) throw errors::objectNotSet();
    return *real_;
  }

  Tape& tape_;
  std::unique_ptr<HttpRequest> real_;
};

/// The diagnostic log: what a replay would write in it stands there already.
class TapedLog : public TextStream {
 public:
  TapedLog(const Tape& tape, Files& files, std::string path, std::unique_ptr<TextStream> real)
      : tape_(tape), files_(files), path_(std::move(path)), real_(std::move(real)) {}

  void writeLine(std::string_view bytes) override {
    if (tape_.replaying()) return;
    if (!real_) real_ = files_.continueText(path_);
    real_->writeLine(bytes);
  }

 private:
  const Tape& tape_;
  Files& files_;
  std::string path_;
  std::unique_ptr<TextStream> real_;
};

Asked asked(bool today) { return today ? Asked::today : Asked::asRecorded; }

}  // namespace

std::unique_ptr<HttpRequest> TapedHttp::createRequest() {
  std::unique_ptr<HttpRequest> request;
  const bool made = tape_.outcome(Source::makeRequest, [&] {
    request = real_.createRequest();
    return request != nullptr;
  });
  if (!made) return nullptr;
  return std::make_unique<TapedRequest>(tape_, std::move(request));
}

std::string TapedPage::url() {
  return tape_.outcome(
      Source::pageUrl, [&] { return real_.url(); }, asked(today_.page));
}

/// The cookie is a secret, and of one day: only whether there is one stands on the tape.
std::string TapedPage::cookie() {
  std::string cookie;
  tape_.outcome(Source::pageCookie, [&] { cookie = real_.cookie(); });
  if (!tape_.replaying()) return cookie;
  try {
    return real_.cookie();
  } catch (const RunTimeError&) {
    return "";
  }
}

std::string TapedBag::read(std::string_view name) {
  return tape_.outcome(
      Source::readProperty, [&] { return real_.read(name); },
      asked(today_.properties.contains(std::string(name))));
}

void TapedBag::write(std::string_view name, std::string_view value) {
  tape_.outcome(Source::writeProperty, [&] { real_.write(name, value); });
}

std::string TapedSettings::read(std::string_view application, std::string_view section,
                                std::string_view key, std::string_view defaultValue) {
  return tape_.outcome(
      Source::readSetting, [&] { return real_.read(application, section, key, defaultValue); },
      asked(today_.settings));
}

void TapedSettings::write(std::string_view application, std::string_view section,
                          std::string_view key, std::string_view value) {
  tape_.outcome(Source::writeSetting, [&] { real_.write(application, section, key, value); });
}

std::string TapedFiles::readAll(std::string_view path) {
  return tape_.outcome(Source::readFile, [&] { return real_.readAll(path); });
}

void TapedFiles::replace(std::string_view path, std::string_view bytes) {
  tape_.outcome(Source::replaceFile, [&] { real_.replace(path, bytes); });
  tape_.flush();
}

std::unique_ptr<TextStream> TapedFiles::createText(std::string_view path) {
  std::unique_ptr<TextStream> stream;
  tape_.outcome(Source::openLog, [&] { stream = real_.createText(path); });
  return std::make_unique<TapedLog>(tape_, real_, std::string(path), std::move(stream));
}

std::unique_ptr<TextStream> TapedFiles::continueText(std::string_view path) {
  return real_.continueText(path);
}

bool TapedFiles::folderExists(std::string_view path) {
  return tape_.outcome(Source::folderExists, [&] { return real_.folderExists(path); });
}

void TapedFiles::makeFolder(std::string_view path) {
  tape_.outcome(Source::makeFolder, [&] { real_.makeFolder(path); });
}

std::vector<std::string> TapedFiles::folders(std::string_view path) {
  return tape_.fact(Source::folders, path, [&] { return real_.folders(path); });
}

std::vector<std::string> TapedFiles::files(std::string_view path, std::string_view ending) {
  return tape_.outcome(Source::files, [&] { return real_.files(path, ending); });
}

std::vector<std::string> TapedFiles::drives() {
  return tape_.fact(Source::drives, "", [&] { return real_.drives(); });
}

Moment TapedClock::now() const {
  return tape_.outcome(
      Source::clock, [&] { return real_.now(); }, asked(today_.clock));
}

Answer TapedScreen::ask(const MessageBox& box) {
  return static_cast<Answer>(tape_.answer([&] { return static_cast<int>(real_.ask(box)); }));
}

void TapedScreen::formOpened(Form& form) {
  if (!isRecorded(form)) return real_.formOpened(form);
  opened_.push_back(&form);
  tape_.passing([&] { real_.formOpened(form); });
}

void TapedScreen::runModal(Form& form) {
  if (!isRecorded(form)) return real_.runModal(form);
  tape_.wait(form, [&] {
    while (form.shown() && tape_.replaying()) {
      const Record* deed = tape_.nextDeed();
      if (deed == nullptr) break;
      if (deed->kind == RecordKind::closed) return form.hide();
      perform(*deed);
    }
    if (form.shown()) real_.runModal(form);
  });
  std::erase(opened_, &form);
}

void TapedScreen::cursorChanged(Cursor cursor) {
  cursor_ = cursor;
  tape_.passing([&] { real_.cursorChanged(cursor); });
}

void TapedScreen::workBegins(std::string_view what) {
  works_.emplace_back(what);
  tape_.passing([&] { real_.workBegins(what); });
}

void TapedScreen::workEnds() {
  works_.pop_back();
  tape_.passing([&] { real_.workEnds(); });
}

void TapedScreen::letEventsRun() {
  tape_.passing([&] { real_.letEventsRun(); });
}

void TapedScreen::showAll() {
  for (Form* form : opened_) real_.formOpened(*form);
  if (cursor_ != Cursor::normal) real_.cursorChanged(cursor_);
  for (const std::string& what : works_) real_.workBegins(what);
}

TapedPlatform::TapedPlatform(Tape& tape, const Platform& real, AskedToday today)
    : today_(std::move(today)),
      http_(tape, real.http),
      page_(tape, real.page, today_),
      bag_(tape, real.bag, today_),
      host_(tape, real.host),
      settings_(tape, real.settings, today_),
      files_(tape, real.files),
      clock_(tape, real.clock, today_),
      screen(tape, real.screenFace),
      platform{.xml = real.xml,
               .http = http_,
               .page = page_,
               .bag = bag_,
               .host = host_,
               .settings = settings_,
               .files = files_,
               .clock = clock_,
               .locale = real.locale,
               .screenFace = screen,
               .version = real.version} {}

}  // namespace awizo::journal
