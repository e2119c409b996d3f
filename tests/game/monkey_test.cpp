// A monkey at the real windows: a hundred thousand random events, and after each of them what has
// to hold in every position. Time, chance and sound are in its hand, so a run is told by its seed,
// which it prints: KORVEL_SEED=17 repeats run 17.

#include "Stage.h"
#include "players.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>

#include <iostream>

namespace {

constexpr int kEvents = 100'000;
constexpr int kNever = 24 * 3600 * 1000; // ms: the monkey ticks the timers itself

/// One side as the arrays tell it.
struct Side {
  int boats[6]{}; ///< not sunk, or in the set-up not complete, lengths 6 down to 1
  int hits = 0, misses = 0, sunk = 0, afloat = 0;

  Side(const clsGrid &grid, const Field &field, const tBoot &(clsGrid::*boot)(int) const,
       bool set) {
    for (int i = 1; i <= grid.BoatCount(); ++i) {
      const tBoot &boat = (grid.*boot)(i);
      const Cell last = boat.cell(boat.length());
      const bool stands = last.X != 0;
      const bool isSunk = stands && field(last.X, last.Y, 2) == Shot::sunk;
      boats[6 - boat.length()] += set ? !stands : !isSunk;
      ++(isSunk ? sunk : afloat);
    }
    for (int Y = 1; Y <= field.rows(); ++Y)
      for (int X = 1; X <= field.columns(); ++X) {
        misses += field(X, Y, 2) == Shot::miss;
        hits += field(X, Y, 2) > Shot::miss;
      }
  }
};

struct Monkey : Stage {
  Monkey() {
    if (qEnvironmentVariableIsSet("KORVEL_SEED"))
      seed_ = static_cast<unsigned>(qEnvironmentVariableIntValue("KORVEL_SEED"));
    random_.seed(seed_);
    draw = ScriptedDraw(seed_);
    QApplication::setDoubleClickInterval(0); // no clock decides
    QApplication::setKeyboardInputInterval(0);
    start();
    wake();
  }
  ~Monkey() override {
    std::cout << "monkey: seed " << seed_ << ", " << events_ << " events, " << starts_
              << " starts, " << games_ << " battles, " << turns_ << " turns, " << ends_ << " ends, "
              << dialogs_ << " answers to dialogs, digest " << digest_ << '\n';
  }

  int any(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  void tick(QTimer &timer) { QMetaObject::invokeMethod(&timer, "timeout"); }
  QTimer &timTTip() { return *window->findChild<QTimer *>("timTTip"); }

  void start() {
    ++starts_;
    window.reset();
    window = Main(globals, {draw, heard_, store, messages, help}, folder.path());
    robot.emplace(*window);
    timTTip().setInterval(kNever);
    mode_ = frmHaupt::Idle;
  }

  /// Comes back wherever events run: in a dialog, and in the midst of the game's handlers.
  void wake() {
    QTimer::singleShot(0, &here_, [this] {
      wake();
      QWidget *modal = QApplication::activeModalWidget();
      if (modal && modal->isVisible() && modal != busy_) {
        QWidget *const before = std::exchange(busy_, modal);
        ++dialogs_;
        EXPECT_NE(window->grid(), nullptr)
            << "seed " << seed_ << ": without its game: " << modal->metaObject()->className();
        answer(*modal);
        check(nullptr);
        busy_ = before;
      } else if (!modal && window && window->grid() && any(gameIsWon() ? 8 : 400) == 0) {
        any(2) == 0 ? void(window->close()) : tick(timTTip());
      }
    });
  }

  bool gameIsWon() {
    return window->Modus() == frmHaupt::Battle && winnerOf(window->grid()->BoatTable(2)) != 0;
  }

  void mouse(QWidget &target, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(target.windowHandle(), button, {}, at);
  }
  void mouseAt(QWidget &control) {
    mouse(*control.window(), control.mapTo(control.window(), control.rect().center()));
  }
  QPoint somewhere(const QWidget &target) { return {any(target.width()), any(target.height())}; }
  void key(QWidget &target) {
    const Qt::Key keys[] = {Qt::Key_Tab,  Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                            Qt::Key_F1,   Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Backspace,
                            Qt::Key_J,    Qt::Key_N,     Qt::Key_A,      Qt::Key_O,
                            Qt::Key_Left, Qt::Key_T,     Qt::Key_H,      Qt::Key_Delete};
    // With Alt in a dialog Qt would click a tenth of a second later.
    const auto with = any(4) == 0 && &target == window.get() ? Qt::AltModifier : Qt::NoModifier;
    QTest::keyClick(target.windowHandle(), keys[any(std::size(keys))], with);
  }

  void answer(QWidget &dialog) {
    ++events_;
    for (QTimer *timer : dialog.findChildren<QTimer *>()) {
      timer->setInterval(kNever);
      if (timer->isActive() && any(3) == 0)
        tick(*timer);
    }
    const auto buttons = dialog.findChildren<QAbstractButton *>();
    switch (HasFailure() ? 0 : any(16)) {
    case 0:
      dialog.close(); // its frame
      break;
    case 1:
      if (any(15) == 0)
        window->close();
      break;
    case 2:
      if (auto *name = dialog.findChild<QComboBox *>())
        name->setEditText(QStringList{"", "Jörg", "Ж", QString(29, 'x')}[any(30) ? any(3) : 3]);
      break;
    case 3:
    case 4:
      key(dialog);
      break;
    case 5:
    case 6:
      mouse(dialog, somewhere(dialog));
      break;
    default:
      mouseAt(*buttons[any(static_cast<int>(buttons.size()))]);
    }
  }

  /// A cell that brings the game on, mostly.
  Cell target() {
    const clsGrid &grid = *window->grid();
    int next = 1;
    if (window->Modus() == frmHaupt::Setup) {
      while (next < grid.BoatCount() && grid.PBoote(next).X(grid.PBoote(next).length()) != 0)
        ++next;
      if (const auto cell = randomPoint(grid, next, draw); cell && any(4) != 0)
        return *cell;
    } else if (any(3) == 0) {
      while (next < grid.BoatCount() && grid.CBoote(next).isSunk())
        ++next;
      return fresh(next);
    }
    return {1 + any(grid.columns()), 1 + any(grid.rows())};
  }

  void act() {
    ++events_;
    const bool plays = window->Modus() == frmHaupt::Setup || window->Modus() == frmHaupt::Battle;
    const char *keys[] = {"keyNew", "keyOptionen", "keyTop10", "keyHilfe", "keyEnde"};
    help.failure = any(4) == 0 ? "kein Buch" : "";
    if (any(plays ? 150 : 4) == 0)
      return mouseAt(control(plays || any(2) == 0 ? keys[any(5)] : "keyNew"));
    if (any(700) == 0)
      return void(window->close());
    switch (any(24)) {
    case 0:
      return mouse(*window, somewhere(*window), any(2) == 0 ? Qt::LeftButton : Qt::RightButton);
    case 1:
      return QTest::mouseMove(window->windowHandle(), somewhere(*window));
    case 2:
      return any(4) == 0 ? key(*window) : QCoreApplication::processEvents();
    case 3:
      return tick(timTTip());
    case 4:
      return window->resize(any(1200), any(900));
    case 5:
      return any(3) == 0 ? mouseAt(control("imgMüll")) : void();
    default:
      if (plays) {
        const Cell cell = target();
        const int p = window->grid()->CellSize() + 1;
        mouse(*window,
              control("picpFeld")
                  .mapTo(window.get(), QPoint(p * cell.X, p * cell.Y) - QPoint(p / 2, p / 2)));
      }
    }
  }

  /// `outermost` is the window where neither a handler nor a dialog is open.
  void check(const QWidget *outermost) {
    SCOPED_TRACE("seed " + std::to_string(seed_) + ", event " + std::to_string(events_));
    if (const clsGrid *grid = window->grid()) {
      const auto mode = window->Modus();
      EXPECT_EQ(grid->brokenInvariant(), std::nullopt);
      checkGame(*grid, mode, outermost);
      const std::string text = grid->toText();
      EXPECT_TRUE(mode_ != frmHaupt::Over || mode != frmHaupt::Over || text == text_)
          << "something fires after the end";
      text_ = text;
      mode_ = mode;
      digest_ = digest_ * 31 + std::hash<std::string>()(text) + static_cast<std::size_t>(mode);
    }
    if (!outermost)
      return;
    for (const QWidget *widget : QApplication::topLevelWidgets())
      EXPECT_TRUE(!widget->isVisible() || (widget == outermost && window->grid()) ||
                  widget->windowType() == Qt::ToolTip)
          << "left over: " << widget->metaObject()->className();
    for (const QTimer *timer : window->findChildren<QTimer *>())
      EXPECT_TRUE(!timer->isActive() || (timer == &timTTip() && window->grid()))
          << "left running: " << timer->objectName().toStdString();
    EXPECT_LE(window->findChildren<QDialog *>().size(), window->grid() ? 1 : 0);
    EXPECT_EQ(window->size(), QSize(700, 473));
  }

  void checkGame(const clsGrid &grid, frmHaupt::Mode mode, bool outermost) {
    const bool setup = mode == frmHaupt::Setup;
    const Side human(grid, grid.PFeld(), &clsGrid::PBoote, setup);
    const Side computer(grid, grid.CFeld(), &clsGrid::CBoote, false);
    std::vector<QString> table;
    for (const Side *side : {&human, &computer})
      for (const int afloat : side->boats)
        table.push_back(mode == frmHaupt::Idle       ? "?"
                        : setup && side == &computer ? "0"
                                                     : QString::number(afloat));
    EXPECT_EQ(counters(), table);
    if (mode == frmHaupt::Idle || setup) {
      EXPECT_EQ(human.hits + human.misses + computer.hits + computer.misses, 0);
      shots_ = replies_ = hits_ = misses_ = sunk_ = 0;
      return;
    }
    games_ += mode_ == frmHaupt::Setup;
    ends_ += mode == frmHaupt::Over && mode_ != frmHaupt::Over;
    const int shots = computer.hits + computer.misses;
    turns_ += shots - shots_;
    EXPECT_LE(shots - std::exchange(shots_, shots), 1) << "one shot to a press";
    // A sinking brings known water with it, so that its misses are no replies.
    const int misses = human.misses - std::exchange(misses_, human.misses);
    replies_ += human.hits - std::exchange(hits_, human.hits);
    replies_ += std::exchange(sunk_, human.sunk) == human.sunk ? misses : 0;
    EXPECT_EQ(replies_, shots - (computer.afloat == 0)) << "a reply to each, but the winning one";
    EXPECT_EQ(window->BombenZahl(0), shots);
    EXPECT_EQ(window->BombenZahl(1), replies_);
    EXPECT_TRUE(!outermost || mode == frmHaupt::Over || (human.afloat > 0 && computer.afloat > 0));
  }

  /// What arrives after the end finds nothing.
  void checkEnded() {
    const auto seen = [&] {
      return std::tuple(heard_.log.size(), draw.draws, messages.log.size(), help.log.size());
    };
    const auto before = seen();
    control("picpFeld").setEnabled(true);
    for (const char *name : {"keyNew", "keyOptionen", "keyHilfe", "imgMüll", "picpFeld"})
      Robot::click(control(name));
    QTest::keyClick(window.get(), Qt::Key_F1);
    tick(timTTip());
    QCoreApplication::processEvents();
    EXPECT_EQ(seen(), before) << "something happens behind the end";
    check(window.get());
  }

  unsigned seed_ = 1;
  std::mt19937 random_;
  QuietSound heard_; ///< unlike that of the stage it looks at no window
  QObject here_;
  QWidget *busy_ = nullptr; ///< the dialog that is being answered
  int events_ = 0, starts_ = 0, games_ = 0, turns_ = 0, ends_ = 0, dialogs_ = 0;
  int shots_ = 0, replies_ = 0, hits_ = 0, misses_ = 0, sunk_ = 0;
  frmHaupt::Mode mode_ = frmHaupt::Idle;
  std::string text_;
  std::size_t digest_ = 0;
};

TEST_F(Monkey, FindsNothingBroken) {
  while (events_ < kEvents && !HasFailure()) {
    act();
    check(window.get());
    if (!window->grid()) {
      checkEnded();
      start();
    }
  }
}

} // namespace
