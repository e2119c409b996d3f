#include "frmSieg.h"

#include "EventPump.h"
#include "pictures.h"

namespace {

constexpr QColor kWine(0xAC, 0x0D, 0x4D);
constexpr int kBannerTop = 16; // pixels
constexpr const char *kQuestion = "Möchtest Du die Highscore-Tabelle ansehen?";

} // namespace

frmSieg::frmSieg(QWidget *main, const ScoreServices &services)
    : Dialog(main, {388, 228}), services_(services) {
  setAccessibleName("Spielende");
  picHinten_.setGeometry(2, 2, 385, 225);
  picHinten_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  picHinten_.setPixmap(loadPicture("sieg-hintergrund"));
  imgTitle_.setObjectName("imgTitle");
  lblText_.setObjectName("lblText");
  lblBomben_.setObjectName("lblBomben");

  const QFont small = sansFont(9.75, QFont::Bold);
  dress(lblText_, {8, 64, 369, 49}, {.font = small, .text = Qt::white, .wrapped = true});
  lblText_.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  dress(lblBomben_, {4, 112, 373, 25}, {sansFont(15.75, QFont::Bold), kWine});
  auto *Label1 = new QLabel(kQuestion, &picHinten_);
  Label1->setObjectName("Label1");
  dress(*Label1, {8, 160, 369, 17}, {small, Qt::white});

  cmdJa_ = new BlueButton(&picHinten_, "cmdJa", {112, 192, 73, 25}, "&Ja");
  auto *cmdNein = new BlueButton(&picHinten_, "cmdNein", {192, 192, 73, 25}, "&Nein");
  connect(cmdJa_, &QPushButton::clicked, this, &frmSieg::showScores);
  connect(cmdNein, &QPushButton::clicked, this, &QWidget::close);
}

void frmSieg::setBild(int Bild, const QString &Bomben) {
  const QPixmap banner = loadPicture(Bild == 0 ? "banner-sieg" : "banner-verloren");
  const QSize size = banner.deviceIndependentSize().toSize();
  imgTitle_.setAccessibleName(Bild == 0 ? "Herzlichen Glückwunsch!" : "Du Loser!");
  imgTitle_.setPixmap(banner);
  imgTitle_.setGeometry(QRect({(picHinten_.width() - size.width()) / 2, kBannerTop}, size));
  letEventsRun();
  lblBomben_.setText("Mit nur " + Bomben + " Wasserbomben!");
}

void frmSieg::setText(const QString &text) {
  lblText_.setText(text);
  cmdJa_->setAccessibleDescription((text + ' ' + lblBomben_.text() + ' ' + kQuestion).simplified());
}

void frmSieg::showScores() {
  frmScore window(parentWidget(), services_);
  close();
  window.setPlatz(Platz_);
  window.showModally();
}
