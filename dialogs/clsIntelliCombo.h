#pragma once

#include <QComboBox>
#include <QObject>
#include <QPointer>

#include <cstdint>
#include <optional>
#include <utility>

/// Gives an editable combo box a list from a text file and completion while typing: as soon as what
/// is typed is the beginning of an entry, the box shows the whole entry, the part not yet typed
/// selected, so that the next key overwrites it.
///
///     entries Anna and Anton      A        A[nna]     what stands in brackets is selected
///                                 n        An[na]
///                                 t        Ant[on]
///                                 Backspace  Ant      no entry is exactly this
///
/// Backspace and Delete only jump to an entry that matches exactly, so the completed tail can be
/// deleted without its being completed again. Upper and lower case are the same.
class clsIntelliCombo : public QObject {
  Q_OBJECT

public:
  /// The box worked on; none at first. One that is set loses its own completer; the one before
  /// is released.
  QComboBox *Combo() const { return mvarCombo_; }
  void setCombo(QComboBox *vData);

  /// Whether the box completes; at first it does. The list is there either way.
  void setEnabled(bool vData) { enabled_ = vData; }

  /// Why the last failed `Save` or `Load` failed, as a QFileDevice::FileError; 0 if none has.
  std::int32_t LastError() const { return lastError_; }

  /// Writes the list in Windows-1252, one entry on each line with CR LF; with `Append` after
  /// what is in the file. False if that fails, which leaves the file as it was.
  bool Save(const QString &Filename, bool Append = false);

  /// Fills the list from a file of that form; a lone CR or LF ends a line too, and the last line
  /// needs no end. Unless `Append` the list is cleared before, and the text with it, whether or not
  /// the file can be read. Lets events run after each line. Lines of more than 1000 bytes are
  /// skipped. False if the file can't be read to its end, or has more than 16 MB.
  bool Load(const QString &Filename, bool Append = false);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  enum class Match { prefix, exact };

  bool inOpenList(QEvent &event);
  bool keyPressed(const QKeyEvent &key);
  QString NewText(int key) const;
  bool FindAndSelect(const QString &text, Match kind);
  int ComboFind(const QString &text, int start, Match kind) const;
  std::optional<QByteArray> contentOf(const QString &Filename);
  void addEntry(const QString &entry);
  bool fail(std::int32_t error);

  QPointer<QComboBox> mvarCombo_;
  bool enabled_ = true;
  std::pair<int, int> selected_; ///< start and length in the text when the list was dropped down
  std::int32_t lastError_ = 0;
};
