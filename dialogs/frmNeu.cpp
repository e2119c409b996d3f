#include "frmNeu.h"

#include "EventPump.h"

#include <QCompleter>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int kMostTyped = 14; // characters

// Keys that type: what gives a character, Backspace, Enter and Escape included, but neither Delete
// nor the keys that move.
bool types(const QKeyEvent &key) {
  return !key.text().isEmpty() && key.key() != Qt::Key_Delete && key.key() != Qt::Key_Tab &&
         key.key() != Qt::Key_Backtab;
}

// A letter with Alt. Access keys were handled before; any other letter the line would insert.
bool isStray(const QKeyEvent &key) {
  return types(key) && key.modifiers().testFlag(Qt::AltModifier) &&
         !key.modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

frmNeu::frmNeu(QWidget *main, int Size, const QString &name, const QString &ComboPath, Start start)
    : Dialog(main, {284, 203}, "Neues Spiel"), start_(std::move(start)),
      background_(makePicture(this, rect(), "neu-hintergrund")), cboName_(this),
      optSize_(this, {56, 88, 49, 49}, 56, Size) {
  auto *lblName = new QLabel("Name des Spielers:", this);
  auto *lblSize = new QLabel("Spielfeld:", this);
  lblName->setObjectName("lblName");
  lblSize->setObjectName("lblSize");
  dress(*lblName, {56, 16, 121, 17}, {sansFont(9.75), Qt::white});
  dress(*lblSize, {56, 72, 121, 17}, {sansFont(9.75), Qt::white});
  for (QLabel *label : {lblName, lblSize})
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  cboName_.setObjectName("cboName");
  cboName_.setAccessibleName("Name des Spielers");
  cboName_.setGeometry(56, 32, 161, 24);
  cboName_.setEditable(true);
  cboName_.setInsertPolicy(QComboBox::NoInsert);
  cboName_.lineEdit()->setAccessibleName(cboName_.accessibleName());
  cboName_.lineEdit()->setContextMenuPolicy(Qt::NoContextMenu); // it would be English
  cboName_.setFont(sansFont(9.75, QFont::Bold));
  cboName_.setToolTip("Gib hier Deinen Namen ein.");
  QPalette palette = cboName_.palette();
  for (const auto role : {QPalette::Base, QPalette::Button})
    palette.setColor(role, kLightBlue);
  cboName_.setPalette(palette);

  auto *cmdOK =
      new BlueButton(this, "cmdOK", {80, 168, 57, 25}, "&OK!", "Einstellungen übernehmen");
  auto *cmdAbbruch =
      new BlueButton(this, "cmdAbbruch", {144, 168, 57, 25}, "&Abbruch", "Dialog abbrechen");
  connect(cmdOK, &QPushButton::clicked, this, &frmNeu::cmdOK_Click);
  connect(cmdAbbruch, &QPushButton::clicked, this, &QWidget::close);

  Intelli_.setCombo(&cboName_);
  cboName_.installEventFilter(this); // after the completion's own, so this one sees a key first
  Intelli_.Load(ComboPath);
  Intelli_.setEnabled(true);
  cboName_.setEditText(name);
  cboName_.lineEdit()->selectAll();
}

void frmNeu::cmdOK_Click() {
  // A pasted text may bring further lines.
  QString name = cboName_.currentText().section('\n', 0, 0).section('\r', 0, 0);
  if (name.isEmpty())
    name = "Unbekannt";
  hide();
  letEventsRun();
  start_(GetSize(), name);
}

// The focus goes to the name whenever the dialog comes up.
bool frmNeu::event(QEvent *event) {
  if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate)
    cboName_.setFocus();
  return Dialog::event(event);
}

// A name grows by typing to 14 characters. From there on every typing key is discarded, Backspace
// too, and nothing is composed; Delete and the choice from the list go on working.
bool frmNeu::eventFilter(QObject *watched, QEvent *event) {
  const auto isFull = [this] { return cboName_.currentText().size() >= kMostTyped; };
  if (event->type() == QEvent::KeyPress) {
    const auto &key = static_cast<QKeyEvent &>(*event);
    if (isStray(key) || (types(key) && isFull()))
      return true;
  } else if (event->type() == QEvent::InputMethod) {
    auto &input = static_cast<QInputMethodEvent &>(*event);
    const QString &commit = input.commitString();
    const bool composes = !input.preeditString().isEmpty();
    if (isFull() && (composes || !commit.isEmpty())) {
      if (composes)
        QGuiApplication::inputMethod()->reset();
      return true;
    }
    const QLineEdit &edit = *cboName_.lineEdit();
    const qsizetype room = kMostTyped - (edit.text().size() - edit.selectedText().size());
    if (commit.size() > room)
      input.setCommitString(commit.left(room), input.replacementStart(), input.replacementLength());
  }
  return Dialog::eventFilter(watched, event);
}

// Escape is not bound here.
void frmNeu::keyPressEvent(QKeyEvent *event) { event->ignore(); }
