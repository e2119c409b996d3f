#include "frmScore.h"

#include "EventPump.h"
#include "frmMeldung.h"
#include "pictures.h"
#include "sounds.h"

#include <QMouseEvent>

namespace {

constexpr int kBlink = 400;  // ms
constexpr int kRowTop = 112; // pixels
constexpr int kRowStep = 22;

void addLabel(QWidget *parent, const QString &name, const QString &text, const QRect &place,
              const LabelLook &look) {
  auto *label = new QLabel(text, parent);
  label->setObjectName(name);
  dress(*label, place, look);
}

void addLine(QWidget *parent, const QString &name, const QRect &place) {
  auto *line = new QWidget(parent);
  line->setObjectName(name);
  line->setGeometry(place);
  line->setPalette(Qt::black);
  line->setAutoFillBackground(true);
}

} // namespace

frmScore::frmScore(QWidget *main, const ScoreServices &services)
    : Dialog(main, {300, 381}), services_(services) {
  services_.player.PlayWav(loadSound("top10"), true);
  setAccessibleName("Bestenliste");
  makePicture(this, {0, 0, 300, 382}, "score-hintergrund");
  buildHeadings();
  buildRows();
  buildTabs();
  timBlinker_.setParent(this);
  timBlinker_.setObjectName("timBlinker");
  timBlinker_.setInterval(kBlink);
  connect(&timBlinker_, &QTimer::timeout, this, &frmScore::blink);
  ShowTable(services_.Grid.Size());
}

frmScore::~frmScore() { services_.player.stop(); }

void frmScore::buildHeadings() {
  QFont font = sansFont(9.75, QFont::Bold);
  font.setUnderline(true);
  addLabel(this, "lblBeschriftung0", "Platz", {16, 82, 41, 17}, {font, Qt::black});
  addLabel(this, "lblBeschriftung1", "Name", {80, 82, 89, 17}, {font, Qt::black});
  addLabel(this, "lblBeschriftung2", "Quote", {224, 82, 41, 17}, {font, Qt::black});
  addLabel(this, "lblBeschriftung3", "Zum Beenden auf das Fenster klicken!", {40, 340, 221, 13},
           {sansFont(8.25, QFont::Bold), Qt::white});
  // Three pixels wide, round a line of one.
  addLine(this, "linTab1", {13, 103, 270, 3});
  addLine(this, "linTab0", {55, 80, 3, 257});
  addLine(this, "linTab2", {191, 80, 3, 257});
}

void frmScore::buildRows() {
  struct Column {
    std::array<QLabel *, kPlaces> &labels;
    const char *name;
    QRect first;
    Qt::Alignment alignment;
  };
  const Column columns[] = {
      {lblNr_, "lblNr%1", {24, kRowTop, 25, 17}, Qt::AlignRight},
      {lblName_, "lblName%1", {64, kRowTop, 153, 19}, Qt::AlignLeft},
      {lblQuote_, "lblQuote%1", {200, kRowTop, 83, 17}, Qt::AlignRight},
  };
  for (const auto &[labels, name, first, alignment] : columns)
    for (std::size_t row = 0; row < labels.size(); ++row) {
      labels[row] = new QLabel(this);
      labels[row]->setObjectName(QString(name).arg(row));
      dress(*labels[row], first.translated(0, kRowStep * static_cast<int>(row)),
            {sansFont(12, QFont::Bold), Qt::black});
      labels[row]->setAlignment(alignment | Qt::AlignTop);
    }
  for (std::size_t row = 0; row < lblNr_.size(); ++row)
    lblNr_[row]->setText(QString("%1.").arg(row + 1));
}

void frmScore::buildTabs() {
  const int width = (this->width() - 21) / 3 - 3;
  for (int i = 0; i < 3; ++i) {
    auto *tab = new BlueButton(this, QString("optSize%1").arg(i), {i * width + 5, 355, width, 21},
                               QString("Größe %1").arg(i + 1),
                               "Highscoretabelle entsprechend Spielebene anzeigen.");
    tab->setCheckable(true);
    tab->setAutoExclusive(true);
    if (i == services_.Grid.Size() - 1) {
      tab->setChecked(true);
      tab->setFocus();
    }
    connect(tab, &QPushButton::clicked, this, [this, i] {
      ShowTable(i + 1);
      setPlatz(0);
    });
  }
  auto *cmdClear =
      new BlueButton(this, "cmdClear", {275, 355, 21, 21}, "", "Löscht die komplette Top-Ten!");
  cmdClear->setAccessibleName("Top Ten löschen");
  cmdClear->setIcon(loadPicture("muell-klein"));
  cmdClear->setIconSize({16, 16});
  connect(cmdClear, &QPushButton::clicked, this, &frmScore::clearLists);
}

void frmScore::setPlatz(int Platz) {
  Platz_ = Platz;
  nameRows();
  if (Platz > 0) {
    timBlinker_.start();
  } else {
    timBlinker_.stop();
    ResetColors();
  }
}

// The winner has hit every boat cell exactly once, so the share of hits follows from the bombs.
int frmScore::share(int bombs) const { return clsGrid::FleetCells(size_) * 100 / bombs; }

void frmScore::ShowTable(int size) {
  size_ = size;
  for (int place = 1; place <= kPlaces; ++place) {
    const Score::Row &row = services_.score.row(size, place);
    QString quote;
    if (const int bombs = row.bombs(); bombs > 0)
      quote = QString("%1 (%2%)").arg(QString::fromStdString(row.quote)).arg(share(bombs));
    else if (row.quote == "?")
      quote = "?";
    const auto i = static_cast<std::size_t>(place - 1);
    lblName_[i]->setText(QString::fromStdString(row.name));
    lblQuote_[i]->setText(quote);
  }
  nameRows();
}

// What screen readers say of a row.
void frmScore::nameRows() {
  for (int place = 1; place <= kPlaces; ++place) {
    const Score::Row &row = services_.score.row(size_, place);
    const QString isNew = place == Platz_ ? "Neu auf " : "";
    const QString result =
        row.bombs() > 0 ? QString(", %1 Bomben, %2 %").arg(row.bombs()).arg(share(row.bombs()))
                        : QString();
    lblNr_[static_cast<std::size_t>(place - 1)]->setAccessibleName(
        QString("%1Platz %2: %3%4")
            .arg(isNew)
            .arg(place)
            .arg(QString::fromStdString(row.name), result));
  }
}

void frmScore::setRowColors(int first, int count, const QColor &color) {
  for (int row = first; row < first + count; ++row)
    for (const auto &labels : {lblNr_, lblName_, lblQuote_}) {
      QLabel *label = labels[static_cast<std::size_t>(row)];
      QPalette palette = label->palette();
      palette.setColor(QPalette::WindowText, color);
      label->setPalette(palette);
    }
}

void frmScore::blink() {
  const int row = Platz_ - 1;
  const QColor now = lblNr_[static_cast<std::size_t>(row)]->palette().color(QPalette::WindowText);
  setRowColors(row, 1, now == Qt::black ? Qt::red : Qt::black);
}

void frmScore::showModally() {
  do {
    comesAgain_ = false;
    exec();
  } while (comesAgain_ && parentWidget()->isVisible()); // else closed meanwhile
  setPlatz(0);
}

void frmScore::clearLists() {
  hide(); // ends `exec`, as soon as this handler has returned
  const bool clear = ask(parentWidget(), "\r\nSoll die Top-Ten wirklich gelöscht werden?");
  if (!parentWidget()->isVisible()) // the program ends
    return;
  if (clear) {
    if (!services_.score.ResetScore()) {
      services_.fatal(Score::kResetFailed);
      return;
    }
    letEventsRun();
    if (!parentWidget()->isVisible())
      return;
    services_.score.LoadScore();
    ShowTable(size_);
  }
  comesAgain_ = true;
}

// Labels pass their presses on, tabs and buttons don't.
void frmScore::mousePressEvent(QMouseEvent *event) { pressed_ = event->button() == Qt::LeftButton; }

void frmScore::mouseReleaseEvent(QMouseEvent *event) {
  if (pressed_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
    close();
}
