#include "journal/history.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "journal/record_file.h"
#include "journal/state_digest.h"
#include "platform/forms/keys.h"
#include "support/control/taped_control.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// Once it has somebody to ask, it notes the state at each moment at which records are written.
struct NotingRecord : MemoryRecord {
  std::function<std::uint64_t()> digest;
  std::map<std::size_t, std::uint64_t> notes;  ///< by the bytes up to there

  void append(std::string_view more) override {
    MemoryRecord::append(more);
    if (digest) notes[bytes.size()] = digest();
  }
};

/// A user off line with some lines and packages, whose acts can be taken back.
struct Session {
  NotingRecord record;
  TapedControl taped{&record};
  journal::History history{taped.tape, taped.desk.control};
  AwizoWysylki& control = taped.desk.control;
  AwizoForm& form = control.form;

  Session() {
    startOffLine(taped);
    for (const char* name : {"Чай", "Кофе", "Сахар"}) addLine(name);
    for (const char* description : {"Паллета", "Короб"}) addPackage(description);
    form.txtNrAwiza.userType("ТН-6");
    form.grdPozycje.userCell(2, 4);
  }

  void inDialog(const std::function<void()>& act, Button& opens) {
    taped.desk.face.onModal(act);
    opens.userClick();
  }
  void addLine(const std::string& name) {
    inDialog(
        [&] {
          DlgDodaj& line = control.dlgDodaj;
          line.txtlEANProdWart.userType("4607000000116");
          line.txtNazwaProdWart.userType(name);
          line.txtIloscZam.userType("7");
          line.txtIloscPotw.userType("5");
          line.btnDodaj.userClick();
        },
        form.btnDodaj);
  }
  void addPackage(const std::string& description) {
    inDialog(
        [&] {
          DlgSzczegoly& package = control.dlgSzczegoly;
          package.txtPackageDesc.userType(description);
          package.cboxILNLokalizacji.userType("9520002000026");
          package.txtSerialNumberN.userType("106141412345678908");
          package.btnDodaj.userClick();
        },
        form.btnDodajOpak);
  }
  /// In the open line dialog.
  void assign(const std::string& quantity) {
    inDialog(
        [this, quantity] {
          control.dlgdodajPule.cboxPackages.userChoose(0);
          control.dlgdodajPule.txtQuantity.userType(quantity);
          control.dlgdodajPule.btnDodaj.userClick();
        },
        control.dlgDodaj.Command1);
  }
  void save() {
    form.txtNrZam.userType("417");
    form.txtCodeByBuyer.userType("417");
    taped.desk.face.answer(Answer::yes);
    inDialog([&] { control.dlgWczytajZapisz.ImageZapisz.userClick(); }, form.btnZapisz);
  }
  void editQuantity(const std::string& quantity) {
    form.grdPozycje.userDoubleClick();
    form.txtEdycja.userType(quantity);
  }

  std::uint64_t digest() { return journal::stateDigest(control); }
  /// The state that a replay of the record comes to.
  std::uint64_t digestOfReplay() {
    TapedControl replayed(nullptr, sessionIn(record).records);
    journal::History again(replayed.tape, replayed.desk.control);
    replayed.recording->start();
    return journal::stateDigest(replayed.desk.control);
  }
  /// The state in which a replay of the record waits for the user, be it in a dialog or a box.
  std::uint64_t digestWhereReplayWaits() {
    struct Waits {};
    TapedControl replayed(nullptr, sessionIn(record).records);
    journal::History again(replayed.tape, replayed.desk.control);
    replayed.desk.face.actUnscripted = [](Form&) { throw Waits{}; };
    replayed.desk.face.answerUnscripted = [](const MessageBox&) -> Answer { throw Waits{}; };
    std::uint64_t state = 0;
    replayed.recording->onLive = [&] { state = journal::stateDigest(replayed.desk.control); };
    try {
      replayed.recording->start();
    } catch (const Waits&) {
      // The user would go on.
    }
    return state;
  }
  std::string nameOfTakeBack() {
    const journal::StepName* name = history.toTakeBack();
    if (name == nullptr) return "none";
    return name->control == nullptr ? name->text : name->control->name();
  }
};

/// An act on the document, and the control that gives it its name.
struct Act {
  const char* name;
  std::function<void(Session&)> perform;
  /// What is chosen before, which is no act on the document.
  std::function<void(Session&)> prepare = [](Session&) {};
};

void PrintTo(const Act& act, std::ostream* out) { *out << act.name; }

const std::vector<Act> acts{
    {"btnUsun", [](Session& s) { s.form.btnUsun.userClick(); }},
    {"btnDodaj", [](Session& s) { s.addLine("Рис"); }},
    {"btnEdytuj",
     [](Session& s) {
       s.inDialog(
           [&] {
             s.control.dlgDodaj.txtIloscPotw.userType("3");
             s.control.dlgDodaj.btnDodaj.userClick();
           },
           s.form.btnEdytuj);
     }},
    {"btnDodajOpak", [](Session& s) { s.addPackage("Ящик"); }},
    {"btnEdytujOpak",
     [](Session& s) {
       s.inDialog(
           [&] {
             s.control.dlgSzczegoly.txtPackageWeight.userType("12");
             s.control.dlgSzczegoly.btnDodaj.userClick();
           },
           s.form.btnEdytujOpak);
     }},
    {"btnUsunOpak", [](Session& s) { s.form.btnUsunOpak.userClick(); }},
    {"btnNadpisz2",
     [](Session& s) {
       s.taped.desk.face.answer(Answer::yes);
       s.form.btnNadpisz2.userClick();
     },
     [](Session& s) { s.form.comboCountry.userType("RU"); }},
    {"grdPozycje",
     [](Session& s) {
       s.editQuantity("2");
       s.form.txtEdycja.userKey(keys::enter);
     }},
    {"txtNrZam",
     [](Session& s) {
       s.form.txtNrZam.userType("З");
       s.form.txtNrZam.userType("ЗК");
     }},
    {"txtDataAwiza", [](Session& s) { s.form.txtDataAwiza.userSet(makeDate(2026, 12, 24)); }},
    {"cboxPackageDescription", [](Session& s) { s.form.cboxPackageDescription.userChoose(1); }},
};

class TakeBack : public testing::TestWithParam<Act> {};

INSTANTIATE_TEST_SUITE_P(Acts, TakeBack, testing::ValuesIn(acts),
                         [](const auto& act) { return std::string(act.param.name); });

TEST_P(TakeBack, LeavesTheStateAsIfTheActNeverWas) {
  Session without;
  GetParam().prepare(without);
  Session session;
  GetParam().prepare(session);
  GetParam().perform(session);
  session.form.txtGoodsIdentity.userFocus();
  session.form.grdPozycje.userScroll(2);
  ASSERT_EQ(session.nameOfTakeBack(), GetParam().name);
  ASSERT_NE(session.digest(), without.digest());
  session.history.takeBack();
  EXPECT_EQ(session.digest(), without.digest());
  EXPECT_EQ(session.digestOfReplay(), without.digest());
}

/// Where a record ends, and whether the control waited for the user there.
struct Ending {
  std::size_t at;
  bool waits;
};

std::vector<Ending> endingsOf(const std::string& records) {
  std::vector<Ending> endings;
  std::size_t at = 0;
  for (const journal::Record& record :
       journal::wholeRecords(journal::fileBeginning() + records).records) {
    at += journal::framed(record).size();
    endings.push_back({at, record.kind == journal::RecordKind::ready ||
                               record.kind == journal::RecordKind::digest});
  }
  return endings;
}

TEST_P(TakeBack, CutAtEveryByteOfTheLastThreeRecordsIsTheStateBeforeTheCut) {
  Session session;
  session.record.digest = [&] { return session.digest(); };
  GetParam().prepare(session);
  for (const char* typed : {"7", "77"}) session.form.txtGoodsIdentity.userType(typed);
  GetParam().perform(session);
  const std::string whole = session.record.bytes;
  const std::vector<Ending> endings = endingsOf(whole);
  ASSERT_EQ(endings.back().at, whole.size());
  ASSERT_TRUE(session.record.notes.contains(whole.size()));
  std::set<std::uint64_t> states;
  for (std::size_t length = endings[endings.size() - 4].at; length <= whole.size(); ++length) {
    const auto last = std::find_if(endings.rbegin(), endings.rend(), [&](const Ending& ending) {
      return ending.waits && ending.at <= length;
    });
    const std::uint64_t noted = session.record.notes.lower_bound(last->at)->second;
    session.record.bytes = whole.substr(0, length);
    ASSERT_EQ(session.digestWhereReplayWaits(), noted) << length << " of " << whole.size();
    states.insert(noted);
  }
  EXPECT_GE(states.size(), 2U) << "the last act changed nothing";
}

TEST_P(TakeBack, CanBeDoneAgain) {
  Session session;
  GetParam().prepare(session);
  GetParam().perform(session);
  const std::uint64_t done = session.digest();
  session.form.txtGoodsIdentity.userFocus();
  session.history.takeBack();
  session.form.grdPozycje.userScroll(2);
  session.history.doAgain();
  EXPECT_EQ(session.digest(), done);
  EXPECT_EQ(session.digestOfReplay(), done);
  EXPECT_EQ(session.nameOfTakeBack(), GetParam().name);
  EXPECT_EQ(session.history.toDoAgain(), nullptr);
}

TEST_P(TakeBack, GoesOnAsIfTheActNeverWas) {
  Session without;
  GetParam().prepare(without);
  Session session;
  GetParam().prepare(session);
  GetParam().perform(session);
  session.history.takeBack();
  for (const Act& act : acts) {
    for (Session* each : {&session, &without}) {
      act.prepare(*each);
      act.perform(*each);
    }
    EXPECT_EQ(session.digest(), without.digest()) << act.name;
  }
  EXPECT_EQ(session.digestOfReplay(), session.digest());
}

TEST(History, GoesBackStepByStepToTheStartAndOnToTheEnd) {
  Session session;
  std::vector<std::uint64_t> digests;
  for (const Act& act : acts) {
    act.prepare(session);
    digests.push_back(session.digest());
    act.perform(session);
  }
  const std::uint64_t end = session.digest();
  for (auto digest = digests.rbegin(); digest != digests.rend(); ++digest) {
    session.history.takeBack();
    EXPECT_EQ(session.digest(), *digest);
    EXPECT_EQ(session.digestOfReplay(), *digest);
  }
  // Three lines, two packages and the number were there before.
  for (int step = 0; step < 6; ++step) session.history.takeBack();
  EXPECT_EQ(session.history.toTakeBack(), nullptr);
  EXPECT_EQ(session.taped.desk.session.LineCount, 0);
  EXPECT_EQ(session.form.LastPackageSerial, 1);
  while (session.history.toDoAgain() != nullptr) session.history.doAgain();
  EXPECT_EQ(session.digest(), end);
  EXPECT_EQ(session.digestOfReplay(), end);
}

TEST(History, OfANewActForgetsWhatCouldBeDoneAgain) {
  Session session;
  session.form.btnUsun.userClick();
  session.history.takeBack();
  session.form.grdPozycje.userCell(1, 1);
  EXPECT_NE(session.history.toDoAgain(), nullptr);
  session.form.txtNrZam.userType("1");
  EXPECT_EQ(session.history.toDoAgain(), nullptr);
}

TEST(History, OfADialogThatIsLeftHasNoStep) {
  Session session;
  const std::string before = session.nameOfTakeBack();
  session.inDialog([&] { session.control.dlgDodaj.btnZamknij.userClick(); },
                   session.form.btnEdytuj);
  session.inDialog([&] { session.control.dlgIsoCodes.userClose(); }, session.form.Image2);
  session.form.grdPozycje.userCell(3, 2);
  session.form.grdPozycje.userDoubleClick();
  EXPECT_EQ(session.nameOfTakeBack(), before);
}

/// What was packed in the dialog goes with it, what was packed before stays; there is nothing to
/// take back but the last dialog that was accepted.
TEST(History, OfALinesDialogThatIsLeftHasNoStepWhateverWasPackedInIt) {
  Session session;
  DlgDodaj& dialog = session.control.dlgDodaj;
  const auto packing = [&] { return session.form.grdPozycje.cell(2, GRD_POZ_PACK_REFS); };
  session.inDialog(
      [&] {
        session.assign("3");
        dialog.btnDodaj.userClick();
      },
      session.form.btnEdytuj);
  const std::string packed = packing();
  ASSERT_NE(packed, "");
  session.inDialog(
      [&] {
        session.assign("2");
        dialog.btnDodaj.userKey(keys::escape);
      },
      session.form.btnEdytuj);
  EXPECT_EQ(packing(), packed);
  EXPECT_EQ(session.nameOfTakeBack(), "btnEdytuj");
  session.history.takeBack();
  EXPECT_EQ(packing(), "");
}

/// Tax rates can't be entered in this configuration; where they can, a fill is a step like others.
TEST(History, TakesBackAFillOfTaxRates) {
  Session session;
  AwizoForm& form = session.form;
  form.comboStawkaVAT.setVisible(true);
  form.btnNadpisz.setVisible(true);
  form.comboStawkaVAT.userChoose(3);
  const std::uint64_t before = session.digest();
  session.taped.desk.face.answer(Answer::yes);
  form.btnNadpisz.userClick();
  ASSERT_EQ(form.grdPozycje.cell(1, GRD_POZ_TAX_RATE), "18");
  ASSERT_EQ(session.nameOfTakeBack(), "btnNadpisz");
  session.history.takeBack();
  EXPECT_EQ(session.digest(), before);
  session.history.doAgain();
  EXPECT_EQ(form.grdPozycje.cell(3, GRD_POZ_TAX_RATE), "18");
}

TEST(History, OfAFieldThatIsAsItWasHasNoStep) {
  Session session;
  const std::string before = session.nameOfTakeBack();
  session.form.txtNrZam.userType("З");
  EXPECT_EQ(session.nameOfTakeBack(), "txtNrZam");
  session.form.txtNrZam.userType("");
  EXPECT_EQ(session.nameOfTakeBack(), before);
}

TEST(History, OfAFieldThatWasAsItWasInBetweenIsStillItsOwn) {
  Session session;
  AwizoForm& form = session.form;
  form.grdPozycje.userCell(2, 4);
  form.btnUsun.userPress();
  const int lines = form.grdPozycje.rows();
  const std::string before = form.txtCodeByBuyer.text();
  for (const std::string& typed : {std::string("1"), before, std::string("12")}) {
    form.txtCodeByBuyer.userType(typed);
  }
  session.history.takeBack();
  EXPECT_EQ(form.txtCodeByBuyer.text(), before);
  EXPECT_EQ(form.grdPozycje.rows(), lines) << "the removal before is another step";
}

TEST(History, OfOneFieldTwiceHasTwoSteps) {
  Session session;
  session.form.txtNrZam.userType("1");
  session.form.txtCodeByBuyer.userFocus();
  session.form.txtNrZam.userType("2");
  session.history.takeBack();
  EXPECT_EQ(session.form.txtNrZam.text(), "1");
}

TEST(History, WaitsWhileTheUserIsAtSomethingElse) {
  Session session;
  session.inDialog(
      [&] {
        EXPECT_EQ(session.history.toTakeBack(), nullptr);
        session.history.takeBack();
        session.control.dlgDodaj.btnZamknij.userClick();
      },
      session.form.btnEdytuj);
  session.editQuantity("2");
  EXPECT_EQ(session.history.toTakeBack(), nullptr);
  session.form.txtEdycja.userKey(keys::escape);
  EXPECT_EQ(session.nameOfTakeBack(), "txtNrAwiza");
}

TEST(History, OfAButtonPressedInAnEditGoesBackIntoTheEdit) {
  Session session;
  session.editQuantity("2");
  session.form.btnUsun.userPress();
  session.history.takeBack();
  EXPECT_TRUE(session.form.txtEdycja.visible());
  EXPECT_EQ(session.form.txtEdycja.text(), "2");
  EXPECT_EQ(session.form.grdPozycje.cell(2, GRD_POZ_QTY_DESPATCHED), "5,000");
  session.form.txtEdycja.userKey(keys::enter);
  session.history.takeBack();
  EXPECT_FALSE(session.form.txtEdycja.visible());
  EXPECT_EQ(session.digestOfReplay(), session.digest());
}

TEST(History, EndsAtWhatTheHostDoes) {
  Session session;
  EXPECT_THROW(session.taped.doHostAct({"error"}), RunTimeError);
  EXPECT_EQ(session.history.toTakeBack(), nullptr);
}

TEST(History, EndsAtAFileThatIsRead) {
  Session session;
  session.inDialog(
      [&] {
        session.control.dlgWczytajZapisz.DirList.userOpen("c:\\VIRD");
        session.control.dlgWczytajZapisz.FileList.userChoose(0);
        session.control.dlgWczytajZapisz.ImageWczytaj.userClick();
      },
      session.form.btnWczytaj);
  EXPECT_EQ(session.history.toTakeBack(), nullptr);
}

TEST(History, ASavedDocumentIsOnTheDiskAtOnce) {
  Session session;
  const int before = session.record.flushes;
  session.save();
  EXPECT_EQ(session.record.flushes, before + 1);
}

TEST(History, PastASavingSaysThatTheDocumentIsNotSaved) {
  Session session;
  session.save();
  EXPECT_FALSE(session.control.isDocumentChanged());
  session.history.takeBack();
  EXPECT_EQ(session.form.txtCodeByBuyer.text(), "");
  EXPECT_TRUE(session.control.isDocumentChanged());
  EXPECT_EQ(session.digestOfReplay(), session.digest());
  session.history.doAgain();
  EXPECT_TRUE(session.control.isDocumentChanged());
}

TEST(History, TakesBackAsOneStepWhatIsDoneAsOne) {
  Session session;
  const std::uint64_t before = session.digest();
  {
    const auto step = session.history.asOneStep("упаковка по одной");
    session.addPackage("Третья");
    session.form.btnUsun.userClick();
    EXPECT_EQ(session.history.toTakeBack(), nullptr);
  }
  EXPECT_EQ(session.nameOfTakeBack(), "упаковка по одной");
  const std::uint64_t after = session.digest();
  EXPECT_EQ(session.digestOfReplay(), after);
  session.history.takeBack();
  EXPECT_EQ(session.digest(), before);
  EXPECT_EQ(session.digestOfReplay(), before);
  session.history.doAgain();
  EXPECT_EQ(session.digest(), after);
  EXPECT_EQ(session.digestOfReplay(), after);
}

TEST(History, KnowsItsStepsAfterAReplayToo) {
  Session session;
  {
    const auto step = session.history.asOneStep("всё сразу");
    session.addPackage("Третья");
    session.addPackage("Четвёртая");
  }
  session.form.btnUsun.userClick();
  MemoryRecord next;
  TapedControl replayed(&next, sessionIn(session.record).records);
  journal::History history(replayed.tape, replayed.desk.control);
  replayed.recording->start();
  EXPECT_EQ(journal::stateDigest(replayed.desk.control), session.digest());
  ASSERT_NE(history.toTakeBack(), nullptr);
  EXPECT_EQ(history.toTakeBack()->control->name(), "btnUsun");
  history.takeBack();
  EXPECT_EQ(history.toTakeBack()->text, "всё сразу");
  history.takeBack();
  session.history.takeBack();
  session.history.takeBack();
  EXPECT_EQ(journal::stateDigest(replayed.desk.control), session.digest());
  TapedControl third(nullptr, sessionIn(next).records);
  third.recording->start();
  EXPECT_EQ(journal::stateDigest(third.desk.control), session.digest());
}

TEST(History, CutAtEveryByteOfATakingBackIsBeforeOrAfterIt) {
  Session session;
  session.form.btnUsun.userClick();
  const std::uint64_t before = session.digest();
  const std::size_t start = session.record.bytes.size();
  session.history.takeBack();
  const std::uint64_t after = session.digest();
  const std::string whole = session.record.bytes;
  std::size_t later = 0;
  for (std::size_t length = start; length <= whole.size(); ++length) {
    session.record.bytes = whole.substr(0, length);
    const std::uint64_t replayed = session.digestOfReplay();
    if (replayed == after) ++later;
    ASSERT_EQ(replayed, later == 0 ? before : after) << length;
  }
  EXPECT_GT(later, 0U);
}

TEST(History, NumbersOnlyTheActsThatStand) {
  Session session;
  const std::size_t before = session.taped.tape.deeds();
  session.form.btnUsun.userClick();
  session.history.takeBack();
  EXPECT_EQ(session.taped.tape.deeds(), before);
  session.form.txtNrZam.userType("1");
  EXPECT_EQ(sessionIn(session.record).deeds, before + 1);
}

TEST(History, KeepsOnlySoManySteps) {
  Session session;
  for (std::size_t step = 0; step < journal::History::mostSteps + 3; ++step) {
    session.form.txtNrZam.userType(std::to_string(step));
    session.form.txtCodeByBuyer.userFocus();
  }
  std::size_t steps = 0;
  for (; session.history.toTakeBack() != nullptr; ++steps) session.history.takeBack();
  EXPECT_EQ(steps, journal::History::mostSteps);
  EXPECT_EQ(session.form.txtNrZam.text(), "2");
}

}  // namespace
}  // namespace awizo::test
