#include "clsIntelliCombo.h"

#include "EventPump.h"
#include "windows1252.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSaveFile>

namespace {

constexpr qint64 kLargestFile = 16'000'000; // bytes: a million names, four seconds
constexpr qsizetype kLongestEntry = 1000;   // bytes; to lay out very long texts takes minutes

QString DropFirst(const QString &text) { return text.mid(1); }
QString DropLast(const QString &text) { return text.chopped(text.isEmpty() ? 0 : 1); }

/// Takes the next line off the text, without its end.
QByteArray takeLine(QByteArrayView &text) {
  qsizetype end = 0;
  while (end < text.size() && text[end] != '\r' && text[end] != '\n')
    ++end;
  QByteArray line = text.first(end).toByteArray();
  const bool isPair = text.sliced(end).startsWith("\r\n");
  text = text.sliced(std::min(text.size(), end + (isPair ? 2 : 1)));
  return line;
}

} // namespace

void clsIntelliCombo::setCombo(QComboBox *vData) {
  if (mvarCombo_) {
    mvarCombo_->removeEventFilter(this);
    mvarCombo_->view()->removeEventFilter(this);
  }
  mvarCombo_ = vData;
  if (mvarCombo_) {
    mvarCombo_->setCompleter(nullptr);
    mvarCombo_->installEventFilter(this);
    mvarCombo_->view()->installEventFilter(this);
  }
}

bool clsIntelliCombo::Load(const QString &Filename, bool Append) {
  if (!mvarCombo_)
    return fail(QFileDevice::UnspecifiedError);
  if (!Append) {
    mvarCombo_->clear();
    mvarCombo_->clearEditText();
  }
  const auto content = contentOf(Filename);
  if (!content)
    return false;
  for (QByteArrayView rest = *content; !rest.isEmpty();) {
    const QByteArray line = takeLine(rest);
    if (line.size() <= kLongestEntry)
      addEntry(QString::fromStdString(fromWindows1252(line.toStdString())));
    letEventsRun();
  }
  return true;
}

// Nothing if it can't be read to its end; `lastError_` then says why.
std::optional<QByteArray> clsIntelliCombo::contentOf(const QString &Filename) {
  QFile file(Filename);
  // Anything but a plain file could keep the program waiting forever.
  if (!QFileInfo(Filename).isFile() || !file.open(QIODevice::ReadOnly)) {
    lastError_ = QFileDevice::OpenError;
    return std::nullopt;
  }
  if (file.size() > kLargestFile) {
    lastError_ = QFileDevice::ResourceError;
    return std::nullopt;
  }
  QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    lastError_ = file.error();
    return std::nullopt;
  }
  return content;
}

bool clsIntelliCombo::Save(const QString &Filename, bool Append) {
  // Written to a new file, which then replaces the old one.
  if (!mvarCombo_)
    return fail(QFileDevice::UnspecifiedError);
  QByteArray content;
  if (Append && QFileInfo::exists(Filename)) {
    const auto old = contentOf(Filename);
    if (!old)
      return false;
    content = *old;
    if (!content.isEmpty() && !content.endsWith('\n') && !content.endsWith('\r'))
      content += "\r\n";
  }
  for (int i = 0; i < mvarCombo_->count(); ++i)
    content += toWindows1252(mvarCombo_->itemText(i).toStdString()) + "\r\n";
  QSaveFile file(Filename);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0 || !file.commit())
    return fail(file.error());
  return true;
}

bool clsIntelliCombo::fail(std::int32_t error) {
  lastError_ = error;
  return false;
}

void clsIntelliCombo::addEntry(const QString &entry) {
  if (!mvarCombo_)
    return;
  const bool isFirst = mvarCombo_->count() == 0;
  const QString text = mvarCombo_->currentText();
  mvarCombo_->addItem(entry);
  if (isFirst) { // which Qt has selected
    mvarCombo_->setCurrentIndex(-1);
    mvarCombo_->setEditText(text);
  }
}

bool clsIntelliCombo::eventFilter(QObject *watched, QEvent *event) {
  if (enabled_ && mvarCombo_ && mvarCombo_->lineEdit()) {
    if (watched == mvarCombo_->view())
      return inOpenList(*event);
    if (event->type() == QEvent::KeyPress && keyPressed(static_cast<QKeyEvent &>(*event)))
      return true;
    // Text from a dead key or another input method: the box takes it first, which ends the
    // composing, then it is completed.
    if (event->type() == QEvent::InputMethod &&
        !static_cast<QInputMethodEvent *>(event)->commitString().isEmpty()) {
      mvarCombo_->hidePopup();
      mvarCombo_->lineEdit()->event(event);
      FindAndSelect(mvarCombo_->currentText(), Match::prefix);
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

// The open list gets the keys before the box does. True if the event is handled.
bool clsIntelliCombo::inOpenList(QEvent &event) {
  QComboBox &box = *mvarCombo_;
  QLineEdit &edit = *box.lineEdit();
  if (event.type() == QEvent::Show) {
    // Enter takes the marked entry. None is marked while the text is different.
    if (box.itemText(box.currentIndex()) != box.currentText())
      box.view()->setCurrentIndex({});
    selected_ = {edit.selectionStart(), edit.selectionLength()}; // lost together with the focus
  }
  if (event.type() != QEvent::KeyPress)
    return false;
  const auto &key = static_cast<QKeyEvent &>(event);
  const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  const bool isMarked = box.view()->currentIndex().isValid();
  if (isEnter ? isMarked : key.text().isEmpty() || key.key() == Qt::Key_Escape)
    return false; // takes the entry, moves in the list or closes it
  // All other keys go to the box, as with a closed list: typing, deleting, access keys.
  box.hidePopup();
  if (selected_.second > 0)
    edit.setSelection(selected_.first, selected_.second);
  if (!isEnter)
    QCoreApplication::sendEvent(&box, &event);
  return true;
}

// True if the key is handled. Keys that do more than type or delete a character keep their
// ordinary effect: commands, such as Ctrl+Backspace, and Shift+Delete, which cuts.
bool clsIntelliCombo::keyPressed(const QKeyEvent &key) {
  const auto modifiers = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier) // both: AltGr
    return false;
  if (key.key() == Qt::Key_Backspace ||
      (key.key() == Qt::Key_Delete && !key.modifiers().testFlag(Qt::ShiftModifier)))
    return FindAndSelect(NewText(key.key()), Match::exact);
  const QString typed = key.text();
  return typed.size() == 1 && typed[0].isPrint() &&
         FindAndSelect(NewText(typed[0].unicode()), Match::prefix);
}

// The text that the box would hold after a key: a character, or Qt's code for Backspace or Delete,
// which no character has.
QString clsIntelliCombo::NewText(int key) const {
  const QLineEdit &edit = *mvarCombo_->lineEdit();
  const QString text = edit.text();
  const bool isSelected = edit.hasSelectedText();
  QString before = text.left(isSelected ? edit.selectionStart() : edit.cursorPosition());
  QString after = text.mid(before.size() + edit.selectedText().size());
  if (key != Qt::Key_Backspace && key != Qt::Key_Delete)
    before += QChar(key);
  else if (!isSelected && key == Qt::Key_Backspace)
    before = DropLast(before);
  else if (!isSelected)
    after = DropFirst(after);
  return before + after;
}

bool clsIntelliCombo::FindAndSelect(const QString &text, Match kind) {
  QComboBox &box = *mvarCombo_;
  const int start = std::max(box.currentIndex() - 1, -1); // so that it sees the selected entry too
  if (text.isEmpty()) {
    box.setCurrentIndex(-1);
    box.clearEditText();
    return start != -1;
  }
  const int found = ComboFind(text, start, kind);
  if (found < 0)
    return false;
  const QString entry = box.itemText(found);
  box.setCurrentIndex(found);
  box.setEditText(entry);
  box.lineEdit()->setSelection(static_cast<int>(text.size()),
                               static_cast<int>(entry.size() - text.size()));
  return true;
}

// Looks from the entry after `start` on and wraps once to the top; -1 if there is none.
int clsIntelliCombo::ComboFind(const QString &text, int start, Match kind) const {
  const int count = mvarCombo_->count();
  for (int step = 1; step <= count; ++step) {
    const int index = (start + step) % count;
    const QString entry = mvarCombo_->itemText(index);
    if (kind == Match::prefix ? entry.startsWith(text, Qt::CaseInsensitive)
                              : entry.compare(text, Qt::CaseInsensitive) == 0)
      return index;
  }
  return -1;
}
