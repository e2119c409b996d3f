// Any bytes as the file of names, in the real box.

#include "clsIntelliCombo.h"
#include "fuzz.h"
#include "windows1252.h"

#include <QApplication>

#include <algorithm>

namespace {

/// By the ends of lines alone: each LF, each CR without one, and what stands behind the last end.
int lines(const std::string &bytes) {
  long count = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    count += bytes[i] == '\n' || (bytes[i] == '\r' && bytes.substr(i + 1, 1) != "\n");
  const bool open = !bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r';
  return static_cast<int>(count) + (open ? 1 : 0);
}

std::string withoutEnds(std::string bytes) {
  std::erase_if(bytes, [](char c) { return c == '\r' || c == '\n'; });
  return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t length) {
  static int argc = 1;
  static char program[] = "fuzz_combo", *argv[] = {program, nullptr};
  static const int offscreen = setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static const QApplication application(argc, argv);
  if (length > 1000) // the longest line that is read
    return -1;
  const char *const file = "Combo.txt", *const saved = "Saved.txt";
  const std::string bytes(reinterpret_cast<const char *>(data), length);
  writeFile(file, bytes);

  QComboBox box;
  box.setEditable(true);
  clsIntelliCombo combo;
  combo.setCombo(&box);
  PROMISE(offscreen == 0 && combo.Load(file));

  // No line is lost, and no byte of one.
  PROMISE(box.count() == lines(bytes));
  std::string all, inLines;
  for (int i = 0; i < box.count(); ++i) {
    const std::string entry = toWindows1252(box.itemText(i).toStdString());
    all += entry;
    inLines += entry + "\r\n";
  }
  PROMISE(all == withoutEnds(bytes));
  PROMISE(box.currentIndex() == -1 && box.currentText().isEmpty());

  // Saved and appended, the list stands there twice, each entry on its line.
  PROMISE(combo.Save(saved) && readFile(saved) == inLines);
  PROMISE(combo.Load(saved, true) && box.count() == 2 * lines(bytes));
  PROMISE(combo.Save(saved) && readFile(saved) == inLines + inLines);
  PROMISE(combo.LastError() == 0);
  return 0;
}
