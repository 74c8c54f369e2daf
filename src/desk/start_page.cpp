#include "desk/start_page.h"

#include <algorithm>

#include "desk/layout_words.h"
#include "desk/unfinished_question.h"
#include "platform/text.h"
#include "session/record/off_line_path.h"

namespace awizo {
namespace {

std::string rowOf(const Partner& partner) {
  return partner.name.empty() ? partner.iln : joined({partner.name, " (", partner.iln, ")"});
}

}  // namespace

StartPage::StartPage(const Platform& platform)
    : OwnScreen(platform.screenFace),
      Form(ownScreen, "StartPage"),
      lblWhy(*this, "lblWhy"),
      btnAgain(*this, "btnAgain", "П&опробовать ещё раз"),
      frmUnfinished(*this, "frmUnfinished", "Незаконченная работа"),
      lblUnfinished(*this, "lblUnfinished"),
      btnGoOn(*this, "btnGoOn", "Продол&жить"),
      frmOffLine(*this, "frmOffLine", "Без связи со службой"),
      lblFolder(*this, "lblFolder", "", "Папка:"),
      lblSeller(*this, "lblSeller", "", "Ваша фирма:"),
      lblMissing(*this, "lblMissing"),
      cboxPartner(*this, "cboxPartner", "Покупатель:", ListStyle::listOnly),
      btnOffLine(*this, "btnOffLine", "&Новый документ"),
      btnOpen(*this, "btnOpen", "Открыть &сохранённый…"),
      btnFolder(*this, "btnFolder", "Выбрать &папку…"),
      frmOnLine(*this, "frmOnLine", "Со службой"),
      lblOnLine(*this, "lblOnLine",
                "Сеанс со службой начинает файл запуска (*.awizo), который даёт её страница. "
                "Откройте его в браузере, выберите здесь или бросьте на это окно."),
      btnLaunchFile(*this, "btnLaunchFile", "Выбрать &файл запуска…"),
      dlgFolder(ownScreen, platform.files, platform.settings, session_),
      platform_(platform),
      session_(platform) {
  setCaption(words::windowTitle);
  btnAgain.onClick = [this] { raise(onAgain); };
  btnGoOn.onClick = [this] {
    if (onGoOn && unfinished_) onGoOn(*unfinished_);
  };
  btnOffLine.onClick = [this] { begin(onOffLine); };
  btnOpen.onClick = [this] { begin(onOpen); };
  btnFolder.onClick = [this] { chooseFolder(); };
  btnLaunchFile.onClick = [this] { raise(onLaunchFile); };
  acceptButton = &btnOffLine;
  offer(std::nullopt);
}

void StartPage::show(std::string_view why, bool mayTryAgain) {
  lblWhy.setCaption(why);
  lblWhy.setVisible(!why.empty());
  btnAgain.setVisible(mayTryAgain);
  refresh();
  showMain();
}

void StartPage::offer(const std::optional<journal::UnfinishedWork>& work) {
  unfinished_ = work;
  if (work) lblUnfinished.setCaption(unfinishedWords(*work));
  for (Control* control :
       {static_cast<Control*>(&frmUnfinished), static_cast<Control*>(&lblUnfinished),
        static_cast<Control*>(&btnGoOn)}) {
    control->setVisible(work.has_value());
  }
}

void StartPage::refresh() {
  const std::string folder = keptOffLinePath(platform_.settings);
  content_ = lookIntoFolder(platform_.xml, platform_.files, folder);
  lblFolder.setCaption(folder.empty() ? "не выбрана" : folder);
  lblSeller.setCaption(content_.seller);
  lblSeller.setVisible(!content_.seller.empty());
  lblMissing.setCaption(content_.missing);
  lblMissing.setVisible(!content_.missing.empty());
  std::vector<std::string> rows;
  std::ranges::transform(content_.partners, std::back_inserter(rows), rowOf);
  cboxPartner.setRows(std::move(rows));
  const bool canWork = content_.missing.empty();
  cboxPartner.setIndex(canWork ? std::max(cboxPartner.index(), 0) : -1);
  for (Control* control : {static_cast<Control*>(&cboxPartner), static_cast<Control*>(&btnOffLine),
                           static_cast<Control*>(&btnOpen)}) {
    control->setEnabled(canWork);
  }
}

FoundPartner StartPage::partnerOf(std::string_view path) const {
  const std::string iln = buyerOfDocument(platform_.xml, platform_.files, path);
  if (iln.empty()) {
    return {nullptr, joined({"Файл не открыт, это не подтверждение отгрузки: ", path})};
  }
  const auto found = std::ranges::find(content_.partners, iln, &Partner::iln);
  if (found != content_.partners.end()) return {&*found, ""};
  return {nullptr,
          joined({"Файл не открыт, в папке нет данных его покупателя (ILN ", iln, "): ", path})};
}

void StartPage::chooseFolder() {
  askOffLineFolder(dlgFolder);
  refresh();
}

void StartPage::begin(const std::function<void(const Partner&)>& way) const {
  const auto chosen = static_cast<std::size_t>(cboxPartner.index());
  if (way && cboxPartner.index() >= 0) way(content_.partners.at(chosen));
}

}  // namespace awizo
