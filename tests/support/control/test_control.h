#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "session/awizo_wysylki.h"
#include "support/test_editor.h"

namespace awizo::test {

/// A control on played surroundings, just made: no event has run yet.
struct TestControl : TestSurroundings {
  explicit TestControl(std::string_view localeName = "ru_RU")
      : TestSurroundings(localeName), around(platform) {}
  /// With something between the control and the surroundings.
  TestControl(std::string_view localeName,
              const std::function<const Platform&(const Platform&)>& between)
      : TestSurroundings(localeName), around(between(platform)) {}

  static constexpr std::string_view folder = "c:\\VIRD";
  static constexpr std::string_view seller = "9520001000010";
  static constexpr std::string_view buyer = "9520002000019";
  static constexpr std::string_view logFile = "c:\\VIRD\\Awizo.log";
  static constexpr std::string_view partnerFile =
      "c:\\VIRD\\9520001000010_9520002000019_partner_INFO.xml";

  const Platform& around;
  SessionState session{around};
  AwizoWysylki control{around, session};
  Screen& screen = control.screen;
  AwizoForm& form = control.form;
  Editor& editor = control.editor;

  static std::string userInfo() {
    return "<user><partner-info><info><iln>9520001000010</iln><nip>7700000001</nip>"
           "<name>ООО Поставщик</name><account>40702</account></info></partner-info></user>";
  }
  static std::string partnerInfo(std::string_view name) {
    return "<partner-info-response><partner-info><info><iln>1</iln><nip>7700000002</nip><name>" +
           std::string(name) +
           "</name><account>40703</account></info></partner-info></partner-info-response>";
  }

  /// The user's folder is set up, with the user's file in it, and the host names the buyer.
  void prepareFolder() {
    settings.values["VIRD\\VirdActiveX\\OffLinePath"] = folder;
    files.put("c:\\VIRD\\userinfo.xml", userInfo());
    bag.values["PartnerILN"] = buyer;
  }
  /// The page that hosts the control, two levels under the application.
  void preparePage() {
    page.pageUrl = "http://firm.example/app/pages/desadv.html";
    page.pageCookie = "SID=abc";
    bag.values["PartnerURL"] = "partner";
  }
  void create() {
    control.UserControl_Initialize();
    control.UserControl_ReadProperties();
  }
  void start() {
    create();
    control.UserControl_Show();
  }
  std::vector<std::string> boxes() const { return describe(face.boxes()); }
  std::string logText() { return locale.fromSingleByte(files.bytes(logFile)); }
};

}  // namespace awizo::test
