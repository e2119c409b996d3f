#pragma once

#include "Score.h"
#include "SoundPlayer.h"
#include "clsGrid.h"
#include "controls.h"

#include <QTimer>

#include <array>
#include <functional>

/// What the windows of the top ten work with. All of it must outlive them. Only the board need not:
/// it is read only while a top ten is made.
struct ScoreServices {
  Score &score;
  const clsGrid &Grid; ///< its size decides which list is shown first
  SoundPlayer &player;
  /// Shows the user why the program has to end, and ends it.
  std::function<void(const QString &text)> fatal;
};

/// The top ten of one board size at a time. A click almost anywhere closes it.
class frmScore : public Dialog {
  Q_OBJECT

public:
  /// Loads the jingle and starts it.
  frmScore(QWidget *main, const ScoreServices &services);
  ~frmScore() override;

  /// The place that blinks, 1 to 10; 0 for none.
  void setPlatz(int Platz);

  /// Shows the window. Returns when it is closed, not while it is hidden for a question.
  void showModally();

protected:
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

private:
  void buildHeadings();
  void buildRows();
  void buildTabs();
  void ShowTable(int size);
  void nameRows();
  /// Of hits, in per cent.
  int share(int bombs) const;
  void ResetColors() { setRowColors(0, kPlaces, Qt::black); }
  void setRowColors(int first, int count, const QColor &color);
  void blink();
  void clearLists();

  static constexpr int kPlaces = Score::kPlaces;

  const ScoreServices services_;
  int Platz_ = 0;
  int size_ = 1; ///< of the tab that is pressed
  bool pressed_ = false;
  bool comesAgain_ = false; ///< it was hidden for a question only
  std::array<QLabel *, kPlaces> lblNr_;
  std::array<QLabel *, kPlaces> lblName_;
  std::array<QLabel *, kPlaces> lblQuote_;
  QTimer timBlinker_; ///< every 400 ms
};
