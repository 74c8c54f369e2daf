#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/control/desk.h"

namespace awizo::test {

/// Pieces of a despatch advice; each can be replaced or left out.
struct AdvicePieces {
  std::string header =
      "<DespatchAdvice-Header><DespatchAdviceNumber>WZ-7</DespatchAdviceNumber>"
      "<DespatchAdviceDate>2026-11-02</DespatchAdviceDate>"
      "<DespatchAdviceTime>08:30</DespatchAdviceTime>"
      "<EstimatedDeliveryDate>2026-12-01</EstimatedDeliveryDate>"
      "<EstimatedDeliveryTime>14:45</EstimatedDeliveryTime>"
      "<BuyerOrderNumber>ORD-7</BuyerOrderNumber><OrderDate>2026-10-30</OrderDate>"
      "<Currency>EUR</Currency></DespatchAdvice-Header>";
  std::string parties =
      "<DespatchAdvice-Parties><Buyer><ILN>9520002000019</ILN></Buyer>"
      "<Seller><ILN>9520001000010</ILN><CodeByBuyer>77</CodeByBuyer></Seller>"
      "<DeliveryPoint><ILN>9520002000026</ILN></DeliveryPoint></DespatchAdvice-Parties>";
  std::string consignment =
      "<DespatchAdvice-Consignment>"
      "<Packing-Sequence><PackageId>1</PackageId></Packing-Sequence>"
      "</DespatchAdvice-Consignment>";
  std::string lines =
      "<DespatchAdvice-Lines><Line><Line-Item><EAN>4607000000116</EAN>"
      "<DespatchedQuantity>1.5</DespatchedQuantity></Line-Item></Line></DespatchAdvice-Lines>";
  std::string summary{};

  std::string text() const {
    return "<Document-DespatchAdvice>" + header + parties + consignment + lines + summary +
           "</Document-DespatchAdvice>";
  }
};

/// A user who reads files from "c:\docs".
struct ReadingDesk : Desk {
  explicit ReadingDesk(std::string_view localeName = "ru_RU", std::string_view debugLevel = "")
      : Desk(localeName, debugLevel) {
    files.putFolder("c:\\docs");
  }

  DlgWczytajZapisz& fileDialog = control.dlgWczytajZapisz;

  static constexpr const char* plainBreak1 = "VIRDDesAdv|none|OK|break1";
  static constexpr const char* incomplete =
      "VIRD|critical|OK|Переписанный документ подтверждения заказа неправилен либо не содержит "
      "всех необходимых позиций.";

  /// The user picks a file of the folder and accepts.
  void choose(const std::string& name) {
    face.onModal([this, name] {
      fileDialog.DirList.userOpen("c:\\docs");
      const std::vector<std::string>& names = fileDialog.FileList.rows();
      for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] == name) fileDialog.FileList.userChoose(static_cast<int>(i));
      }
      fileDialog.ImageWczytaj.userClick();
    });
    form.btnWczytaj.userClick();
  }
  void readBytes(std::string_view bytes) {
    files.put("c:\\docs\\awizo.xml", bytes);
    choose("awizo.xml");
  }
  void read(const AdvicePieces& document) { readBytes(document.text()); }
};

}  // namespace awizo::test
