// A monkey at the real windows: random events, and after each what has to hold in every position.
// Time, chance and sound are in its hand; KORVEL_SEED=17 KORVEL_EVENTS=100000 is a longer run.

#include "Stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>

namespace {

struct Monkey : Stage {
  Monkey() : seed_(qEnvironmentVariable("KORVEL_SEED", "1").toUInt()), random_(seed_) {
    draw = SeededDraw(seed_);
    QApplication::setDoubleClickInterval(0); // no clock decides
    QApplication::setKeyboardInputInterval(0);
    QFile names(folder.filePath("Combo.txt")); // events run while they are read
    EXPECT_TRUE(names.open(QIODevice::WriteOnly) &&
                names.write(QByteArray("Anna\r\n").repeated(99)));
    start();
    wake();
  }

  int any(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool plays() { return window->Modus() == frmHaupt::Setup || window->Modus() == frmHaupt::Battle; }
  BoatTexts boats() {
    return window->Modus() < frmHaupt::Battle ? BoatTexts() : window->grid()->BoatTable(2);
  }

  void start() {
    open();
    sound.wording = nullptr; // bytes, without a look at the window
  }

  /// Comes back wherever events run: in a dialog, and in the midst of the game's handlers, where it
  /// mostly closes the window while a boat sinks.
  void wake() {
    QTimer::singleShot(0, &here_, [this] {
      wake();
      QWidget *modal = QApplication::activeModalWidget();
      if (window->grid() && any(modal ? 60 : boats_ != boats() ? 15 : 1500) == 0) {
        window->close();
      } else if (modal && modal->isVisible() && modal != busy_) {
        QWidget *const before = std::exchange(busy_, modal);
        EXPECT_TRUE(window->grid()) << "without its game: " << modal->metaObject()->className();
        act(*modal);
        check(nullptr);
        busy_ = before;
      }
    });
  }

  /// Does something in a window, the main window or a dialog.
  void act(QWidget &in) {
    ++events_;
    const auto mouse = [&](QPoint at, Qt::MouseButton button) {
      QTest::mouseClick(in.windowHandle(), button, {}, at);
    };
    for (QTimer *timer : in.findChildren<QTimer *>()) {
      timer->setInterval(24 * 3600 * 1000); // only the monkey ticks it
      if (timer->isActive() && any(9) == 0)
        QMetaObject::invokeMethod(timer, "timeout");
    }
    const QPoint somewhere(any(in.width()), any(in.height()));
    auto *name = in.findChild<QComboBox *>();
    const bool isMain = &in == window.get();
    const int what = HasFailure() ? 0 : any(24);
    if (what == 0 && (!isMain || any(60) == 0)) {
      in.close(); // by its frame
    } else if (what == 1 && name) {
      name->setEditText(QStringList{"", "Jörg", "Ж", QString(29, 'x')}[any(4)]);
    } else if (what < 3) {
      const Qt::Key keys[] = {Qt::Key_Tab, Qt::Key_Space,     Qt::Key_Return, Qt::Key_Escape,
                              Qt::Key_F1,  Qt::Key_Backspace, Qt::Key_A,      Qt::Key_N};
      // With Alt in a dialog Qt would click a tenth of a second later.
      const auto with = isMain && any(4) == 0 ? Qt::AltModifier : Qt::NoModifier;
      QTest::keyClick(in.windowHandle(), keys[any(std::size(keys))], with);
    } else if (what == 3) {
      QTest::mouseMove(in.windowHandle(), somewhere);
    } else if (what < 6) {
      mouse(somewhere, any(2) == 0 ? Qt::LeftButton : Qt::RightButton);
    } else if (isMain && plays() && any(120) != 0) {
      robot->press(target());
    } else {
      auto buttons = in.findChildren<QAbstractButton *>();
      buttons.removeIf([](QWidget *button) { return !button->isVisible(); });
      QWidget &button = isMain && !plays() && any(2) == 0
                            ? control("keyNew")
                            : *buttons[any(static_cast<int>(buttons.size()))];
      mouse(button.mapTo(&in, button.rect().center()), Qt::LeftButton);
    }
  }

  /// A cell that brings the game on, mostly.
  Cell target() {
    const clsGrid &grid = *window->grid();
    const bool setup = window->Modus() == frmHaupt::Setup;
    const Cell cell{1 + any(grid.columns()), 1 + any(grid.rows())};
    int next = 1; // boat
    while (next < grid.BoatCount() &&
           (setup ? grid.PBoote(next).X(grid.PBoote(next).length()) : grid.CBoote(next).isSunk()))
      ++next;
    if (any(setup ? 5 : 3) == 0)
      return setup ? cell : fresh(next);
    return setup ? randomPoint(grid, next, draw).value_or(cell) : cell;
  }

  /// `outermost` is the window where neither a handler nor a dialog is open.
  void check(const QWidget *outermost) {
    SCOPED_TRACE("seed " + std::to_string(seed_) + ", event " + std::to_string(events_));
    if (const clsGrid *grid = window->grid())
      checkGame(*grid, outermost);
    if (!outermost)
      return;
    for (const QWidget *widget : QApplication::topLevelWidgets())
      EXPECT_TRUE(!widget->isVisible() || (widget == outermost && window->grid()) ||
                  widget->windowType() == Qt::ToolTip)
          << "left over: " << widget->metaObject()->className();
    for (const QTimer *timer : window->findChildren<QTimer *>())
      EXPECT_TRUE(!timer->isActive() || (timer->objectName() == "timTTip" && window->grid()))
          << "left running: " << timer->objectName().toStdString();
    EXPECT_LE(window->findChildren<QDialog *>().size(), window->grid() ? 1 : 0);
    EXPECT_TRUE(window->grid() || globals.settings.Sound == 0 || sound.log.back() == "start 0")
        << "a sound goes on after the end";
  }

  void checkGame(const clsGrid &grid, bool outermost) {
    const auto mode = window->Modus();
    EXPECT_EQ(grid.brokenInvariant(), std::nullopt);
    EXPECT_EQ(control("picpFeld").isEnabled(), plays());
    EXPECT_TRUE(grid.Treffer == 0 || mode == frmHaupt::Battle);
    std::vector<QString> table;
    for (const auto &side : grid.BoatTable(std::min(mode, frmHaupt::Battle)))
      for (const std::string &text : side)
        table.push_back(QString::fromStdString(text));
    EXPECT_TRUE(counters() == table || control("imgMüll").isEnabled()); // but for a boat in work
    boats_ = boats();
    if (mode < frmHaupt::Battle)
      return;
    int shots = 0;
    for (int Y = 1; Y <= grid.rows(); ++Y)
      for (int X = 1; X <= grid.columns(); ++X)
        shots += grid.CFeld()(X, Y, 2) != Shot::none;
    const int winner = winnerOf(boats_);
    EXPECT_EQ(window->BombenZahl(0), shots);
    EXPECT_EQ(window->BombenZahl(1), shots - (winner == 1))
        << "a reply to each, but the winning one";
    EXPECT_TRUE(!outermost || (winner != 0) == (mode == frmHaupt::Over));
  }

  /// What arrives after the end finds nothing.
  void checkEnded() {
    const auto seen = [&] { return std::tuple(sound.log.size(), draw.draws, help.log.size()); };
    const auto before = seen();
    for (const char *name : {"keyNew", "keyOptionen", "keyHilfe", "imgMüll", "picpFeld"})
      Robot::click(control(name));
    QTest::keyClick(window.get(), Qt::Key_F1);
    QCoreApplication::processEvents();
    EXPECT_EQ(seen(), before) << "something happens behind the end";
  }

  const unsigned seed_;
  std::mt19937 random_;
  QObject here_;
  QWidget *busy_ = nullptr; ///< the dialog that is being answered
  int events_ = 0;
  BoatTexts boats_; ///< of the last check
};

TEST_F(Monkey, FindsNothingBroken) {
  const int most = qEnvironmentVariable("KORVEL_EVENTS", "8000").toInt();
  while (events_ < most && !HasFailure()) {
    act(*window);
    check(window.get());
    if (!window->grid()) {
      checkEnded();
      start();
    }
  }
}

} // namespace
