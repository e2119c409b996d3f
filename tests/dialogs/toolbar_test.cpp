#include "Toolbar.h"
#include "windows.h"

namespace {

TEST(Toolbar, RaisesTheKeyOfWhatIsEnabled) {
  MainWindow main;
  Toolbar bar(&main);
  bar.addButton("keyNew", "&Neues Spiel", "tb-neu", "Neu");
  bar.addButton("keyTop10", "&Top 10", "tb-top10", "Liste");
  bar.addButton("keyEnde", "&Ausgang", "tb-ende", "Ende");
  Robot::control(bar, "keyTop10").setEnabled(false);
  bar.setGeometry(0, 0, 701, 65);
  bar.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
  QString raised;
  QObject::connect(&bar, &Toolbar::clicked, [&](const QString &name) { raised += name; });

  const auto click = [&](int x, int y) {
    return [=, &main] { QTest::mouseClick(main.windowHandle(), Qt::LeftButton, {}, {x, y}); };
  };
  const auto alt = [&](Qt::Key code) { key(main, code, QChar(code).toLower(), Qt::AltModifier); };
  const std::pair<std::function<void()>, QString> cases[] = {
      {click(89, 63), "keyNew"},
      {click(90, 30), ""},
      {click(180, 1), "keyEnde"},
      {click(270, 30), ""},
      {[&] { alt(Qt::Key_N); }, "keyNew"},
      {[&] { alt(Qt::Key_T), alt(Qt::Key_A); }, "keyEnde"},
      {[&] { Robot::control(bar, "keyNew").setFocus(), key(main, Qt::Key_Space, " "); }, "keyNew"},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    raised.clear();
    cases[i].first();
    // An access key clicks a little later.
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised.size() >= cases[i].second.size(); }));
    EXPECT_EQ(raised, cases[i].second) << "case " << i;
  }
}

} // namespace
