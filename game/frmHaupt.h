#pragma once

#include "BoatInWork.h"
#include "Globals.h"
#include "HintServer.h"
#include "Label.h"
#include "PictureBox.h"
#include "SoundPlayer.h"
#include "Toolbar.h"
#include "clsGrid.h"
#include "controls.h"
#include "frmSieg.h"

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>
#include <string>

/// A label of the window that the board may write.
class NameLabel : public QLabel, public Label {
public:
  using QLabel::QLabel;
  void setCaption(const std::string &text) override { setText(QString::fromStdString(text)); }
};

/// The main window, and the owner of the running game.
///
/// The whole game advances on one event, the press on the left field; the computer's reply runs
/// inside its handler. Wherever a handler lets events run or shows a dialog, the window may be
/// closed; closing releases `Grid`, so each handler checks whether it is gone and ends without
/// touching it. The window object itself outlives them all.
class frmHaupt : public QWidget {
  Q_OBJECT

public:
  enum Mode : std::uint8_t { Idle = 0, Setup = 1, Battle = 2, Over = 3 };

  frmHaupt(Globals &globals, const Services &services);

  /// The board; null once the window is closed.
  const clsGrid *grid() const { return Grid.get(); }
  Mode Modus() const { return Modus_; }
  /// Stores the mode, then does what belongs to entering it.
  void setModus(Mode mode);
  /// The winner's bomb count as decimal text, written at the end of a game.
  const QString &Bomben() const { return Bomben_; }
  /// Bombs dropped in this game, by the human (0) and the computer (1).
  int BombenZahl(int side) const { return BombenZahl_[static_cast<std::size_t>(side)]; }

protected:
  bool event(QEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void keyReleaseEvent(QKeyEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  // frmHaupt.cpp: the window
  void buildToolbar();
  void buildFields();
  void buildCounters();
  void runCommand(const QString &key);
  void Form_Unload();
  void Grid_ChangePicSize();
  void DoOptionen();
  void DoTop10();
  void DoEnde();
  ScoreServices scoreServices();
  void endWithMessage(const QString &text);
  bool closed() const { return !Grid; }
  /// Lets events run. False if the window was closed by one of them: the handler has to end.
  [[nodiscard]] bool survivesEvents();

  // modes.cpp: modes, new game, press
  void enterSetup();
  void enableFields(bool enabled);
  int UpdateBoote();
  void DoNew();
  void startGame(int size, const QString &name);
  void picpFeld_MouseDown(Qt::MouseButton button, int X, int Y);

  // setup.cpp: the human's fleet
  void setPoint(const Cell &cell);
  void fleetComplete(const QString &stands);
  void imgMuell_Click();
  void showBin(bool inWork);

  // turn.cpp: a turn of the battle
  void takeTurn(const Cell &cell);
  void computerReplies(const QString &shot);

  // end.cpp: the end of a game
  void humanWins();
  void computerWins();
  std::optional<int> fileResult(const std::string &name, int side);
  void celebrate(int Bild, int Platz, const QString &sentence, const Klang &klang);

  // hints.cpp: hints and help
  void buildHints();
  void openHint(const QString &text);
  void closeHint();
  void startHintTimer();
  void releaseHints();
  void moveHint(const QMouseEvent &event);
  void DoHilfe(HelpViewer::Entry entry);

  // spoken.cpp: what screen readers get
  CellTable cellsOf(const PictureBox &field) const;
  QString describeCell(const PictureBox &field, const Cell &cell) const;
  static QString inWords(const Cell &cell, ShotCode code, int length);
  QString boatInWords(int BootID) const;
  void say(const QString &text);

  Globals &globals_;
  const Services services_;
  SoundPlayer player_;

  Toolbar tbToolbar{this};
  QLabel picHinten{this};
  PictureBox picpFeld;
  PictureBox piccFeld;
  std::array<NameLabel, 2> lblName;
  ImageButton imgMüll{&picHinten};
  std::array<QLabel, 6> lblpBoote;
  std::array<QLabel, 6> lblcBoote;
  HintServer TTip_{sansFont(9.75)};
  QTimer timTTip_{this}; ///< closes hints

  std::unique_ptr<clsGrid> Grid;
  Mode Modus_ = Idle;
  std::array<int, 2> BombenZahl_{};
  QString Bomben_;
  bool ToolTip_ = false;             ///< a hint is open
  BoatInWork boat_;                  ///< `BootID` and `TeilNr`
  std::unique_ptr<frmSieg> frmSieg_; ///< loaded for the end of the game, not shown before
};
