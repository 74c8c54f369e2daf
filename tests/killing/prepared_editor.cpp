#include "killing/prepared_editor.h"

#include <fstream>
#include <istream>
#include <nlohmann/json.hpp>
#include <streambuf>
#include <utility>

#include "adapters/curl/curl_http.h"
#include "adapters/posix/posix_files.h"
#include "hosts/headless/headless_program.h"
#include "hosts/headless/native/native_machine.h"
#include "hosts/headless/native/stream_lines.h"
#include "packagedialog/serial_number.h"
#include "support/files/files.h"

namespace awizo::test {

namespace {

using Json = nlohmann::ordered_json;

/// Lines that the editor reads; before the last one is handed out, `then` is called.
class Lines : public std::streambuf {
 public:
  Lines(std::vector<std::string> lines, std::function<void()> then)
      : lines_(std::move(lines)), then_(std::move(then)) {}

 protected:
  int_type underflow() override {
    if (next_ == lines_.size()) return traits_type::eof();
    if (next_ + 1 == lines_.size()) then_();
    std::string& line = lines_[next_++];
    setg(line.data(), line.data(), line.data() + line.size());
    return traits_type::to_int_type(line.front());
  }

 private:
  std::vector<std::string> lines_;
  std::function<void()> then_;
  std::size_t next_ = 0;
};

Json type(const std::string& on, const std::string& text) {
  return {{"do", "type"}, {"on", on}, {"text", text}};
}

Json click(const std::string& on) { return {{"do", "click"}, {"on", on}}; }

std::string serialNumber(int number) {
  std::string digits = std::to_string(100'000'000 + number);
  digits.insert(0, "03520001");
  return digits + std::to_string(containerCheckDigit(digits));
}

/// A despatch advice to read the lines from; packages aren't read.
std::string documentWithLines() {
  std::string text =
      "<Document-DespatchAdvice><DespatchAdvice-Header>"
      "<DespatchAdviceNumber>WZ-7</DespatchAdviceNumber><BuyerOrderNumber>ORD-7</BuyerOrderNumber>"
      "</DespatchAdvice-Header><DespatchAdvice-Parties><Buyer><ILN>9520002000019</ILN></Buyer>"
      "<Seller><ILN>9520001000010</ILN><CodeByBuyer>77</CodeByBuyer></Seller>"
      "<DeliveryPoint><ILN>9520002001016</ILN></DeliveryPoint></DespatchAdvice-Parties>"
      "<DespatchAdvice-Consignment/><DespatchAdvice-Lines>";
  for (int line = 1; line <= PreparedEditor::lineCount; ++line) {
    const std::string number = std::to_string(line);
    text.append("<Line><Line-Item><LineNumber>").append(number);
    text.append("</LineNumber><EAN>").append(std::to_string(4'600'000'000'000 + line));
    text.append("</EAN><ItemDescription>Чай чёрный байховый листовой, пачка ").append(number);
    text.append(
        "</ItemDescription><OrderedQuantity>10.000</OrderedQuantity>"
        "<DespatchedQuantity>10.000</DespatchedQuantity><UnitOfMeasure>PCE</UnitOfMeasure>"
        "</Line-Item></Line>");
  }
  return text + "</DespatchAdvice-Lines></Document-DespatchAdvice>";
}

void addPackage(std::vector<Json>& lines, int number) {
  lines.push_back(click("btnDodajOpak"));
  lines.push_back(type("DlgSzczegoly.txtPackageDesc", "Поддон " + std::to_string(number)));
  lines.push_back(type("DlgSzczegoly.cboxILNLokalizacji", "9520002001016"));
  lines.push_back(type("DlgSzczegoly.txtSerialNumberN", serialNumber(number)));
  lines.push_back(click("DlgSzczegoly.btnDodaj"));
}

}  // namespace

std::vector<std::string> PreparedEditor::preparingLines() const {
  const std::filesystem::path source = place_.documents() / "lines.xml";
  writeFile(source, documentWithLines());
  const std::string folder = place_.documents().string();
  std::vector<Json> lines{{{"do", "show"}},
                          click("btnWczytaj"),
                          {{"do", "path"}, {"on", "DlgWczytajZapisz.DirList"}, {"value", folder}},
                          {{"do", "choose"}, {"on", "DlgWczytajZapisz.FileList"}, {"row", 0}},
                          click("DlgWczytajZapisz.ImageWczytaj"),
                          {{"answer", "OK"}}};
  for (int number = 1; number <= packageCount; ++number) addPackage(lines, number);
  lines.push_back(click("btnZapisz"));
  lines.push_back({{"answer", "Yes"}});
  lines.push_back(type("DlgWczytajZapisz.txtAwizoPlik", target().string()));
  lines.push_back(click("DlgWczytajZapisz.ImageZapisz"));
  std::vector<std::string> texts;
  for (const Json& line : lines) texts.push_back(line.dump() + "\n");
  return texts;
}

void PreparedEditor::run(const std::function<void()>& then) const {
  Options options;
  options.offLinePath = place_.folder().string();
  options.properties = {{"OnLine", "Off"}, {"PartnerILN", "9520002000019"}};
  options.locale = "ru_RU";
  Lines lines(preparingLines(), then);
  std::istream in(&lines);
  std::ofstream out("/dev/null");
  CurlHttp http;
  PosixFiles files;
  headless::NativeMachine machine(http, files);
  headless::StreamLines talk(in, out);
  headless::runHeadless(options, machine, talk);
}

}  // namespace awizo::test
