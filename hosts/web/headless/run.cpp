// Where JavaScript starts awizo-headless. Lines come and go over the border.

#include <istream>
#include <ostream>
#include <streambuf>
#include <string>

#include "hosts/headless/command_line.h"
#include "hosts/web/core/border.h"
#include "hosts/web/core/code_pages.h"
#include "hosts/web/headless/page_machine.h"

#ifdef __wasm__
#define AWIZO_EXPORT(name) __attribute__((export_name(name)))
#else
#define AWIZO_EXPORT(name)
#endif

namespace awizo::web {

namespace {

class Lines final : public std::streambuf {
 protected:
  int_type underflow() override {
    Fields line = ask({"line"});
    if (line.empty()) return traits_type::eof();
    in_ = std::move(line[0]) + "\n";
    setg(in_.data(), in_.data(), in_.data() + in_.size());
    return traits_type::to_int_type(in_[0]);
  }
  int_type overflow(int_type character) override {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
      out_ += traits_type::to_char_type(character);
    }
    return traits_type::not_eof(character);
  }
  std::streamsize xsputn(const char* bytes, std::streamsize size) override {
    out_.append(bytes, static_cast<std::size_t>(size));
    return size;
  }
  int sync() override {
    askNow({"say", out_});
    out_.clear();
    return 0;
  }

 private:
  std::string in_;
  std::string out_;
};

}  // namespace

}  // namespace awizo::web

extern "C" AWIZO_EXPORT("run") int awizoRun();

int awizoRun() {
  namespace web = awizo::web;
  web::registerCodePages();
  web::PageMachine machine;
  web::Lines lines;
  std::istream in(&lines);
  std::ostream out(&lines);
  return awizo::headless::runCommandLine(web::askNow({"arguments"}), machine, in, out);
}
