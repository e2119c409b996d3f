#include "AccessibleField.h"

#include "PictureBox.h"

#include <QAccessibleWidget>

#include <map>

namespace {

/// A cell of the table. It is made when a screen reader first asks for it, and lives as long as its
/// table; on a board that has become smaller it is not valid.
class AccessibleCell : public QAccessibleInterface,
                       public QAccessibleActionInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleTextInterface {
public:
  AccessibleCell(PictureBox &box, const Cell &cell) : box_(box), cell_(cell) {}

  bool isValid() const override { return box_.cells.has(cell_); }
  QObject *object() const override { return nullptr; }
  QWindow *window() const override { return box_.window()->windowHandle(); }
  QAccessibleInterface *parent() const override {
    return QAccessible::queryAccessibleInterface(&box_);
  }
  QAccessibleInterface *child(int) const override { return nullptr; }
  QAccessibleInterface *childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface *) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Cell; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = !box_.isEnabled();
    state.invisible = !box_.isVisible();
    return state;
  }
  QRect rect() const override {
    if (!isValid())
      return {};
    const QRect place = box_.placeOf(cell_);
    return {box_.mapToGlobal(place.topLeft()), place.size()};
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name)
      return cellName(cell_);
    return kind == QAccessible::Description && isValid() ? box_.cells.describe(cell_) : QString();
  }
  void setText(QAccessible::Text, const QString &) override {}
  void *interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableCellInterface)
      return static_cast<QAccessibleTableCellInterface *>(this);
    if (type == QAccessible::TextInterface)
      return static_cast<QAccessibleTextInterface *>(this);
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
  }

  QStringList actionNames() const override {
    return box_.isEnabled() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString &name) override {
    if (name == pressAction())
      box_.press(cell_);
  }
  QStringList keyBindingsForAction(const QString &) const override { return {}; }

  int columnIndex() const override { return cell_.X - 1; }
  int rowIndex() const override { return cell_.Y - 1; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
  bool isSelected() const override { return false; }
  QAccessibleInterface *table() const override { return parent(); }

  // Orca reads a window line by line: of an object its text or, without one, its name. It asks for
  // the length once and for the text whenever it reads, so that the length is always the same.
  QString text(int from, int to) const override { return words().mid(from, to - from); }
  int characterCount() const override { return static_cast<int>(words().size()); }
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint &) const override { return 0; }
  QString attributes(int, int *from, int *to) const override {
    *from = 0;
    *to = characterCount();
    return {};
  }
  // It has neither a cursor nor a selection.
  int cursorPosition() const override { return -1; }
  void setCursorPosition(int) override {}
  int selectionCount() const override { return 0; }
  void selection(int, int *from, int *to) const override { *from = *to = 0; }
  void setSelection(int, int, int) override {}
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void scrollToSubstring(int, int) override {}

private:
  QString words() const {
    return (text(QAccessible::Name) + ' ' + text(QAccessible::Description)).leftJustified(20);
  }

  PictureBox &box_;
  const Cell cell_;
};

/// The table. Its children are the cells, row by row.
class AccessibleField : public QAccessibleWidget, public QAccessibleTableInterface {
public:
  explicit AccessibleField(PictureBox &box)
      : QAccessibleWidget(&box, QAccessible::Table), box_(box) {}
  ~AccessibleField() override {
    for (const auto &[place, id] : ids_)
      QAccessible::deleteAccessibleInterface(id);
  }

  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }
  int childCount() const override { return rowCount() * columnCount(); }
  QAccessibleInterface *child(int index) const override {
    const int columns = columnCount();
    return columns == 0 ? nullptr : cellAt(index / columns, index % columns);
  }
  QAccessibleInterface *childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i)
      if (QAccessibleInterface *cell = child(i); cell->rect().contains(x, y))
        return cell;
    return nullptr;
  }
  int indexOfChild(const QAccessibleInterface *child) const override {
    const auto *cell = dynamic_cast<const AccessibleCell *>(child);
    return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
  }

  int columnCount() const override { return box_.cells.size().width(); }
  int rowCount() const override { return box_.cells.size().height(); }
  QAccessibleInterface *cellAt(int row, int column) const override {
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
      return nullptr;
    const auto [place, isNew] = ids_.try_emplace({row, column}, 0);
    if (isNew)
      place->second =
          QAccessible::registerAccessibleInterface(new AccessibleCell(box_, {column + 1, row + 1}));
    return QAccessible::accessibleInterface(place->second);
  }
  QString columnDescription(int column) const override { return QChar('A' + column); }
  QString rowDescription(int row) const override { return QString::number(row + 1); }
  QAccessibleInterface *caption() const override { return nullptr; }
  QAccessibleInterface *summary() const override { return nullptr; }
  void modelChange(QAccessibleTableModelChangeEvent *) override {}

  // Nothing can be selected.
  QList<QAccessibleInterface *> selectedCells() const override { return {}; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  int selectedCellCount() const override { return 0; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

private:
  PictureBox &box_;
  mutable std::map<std::pair<int, int>, QAccessible::Id> ids_; ///< of cells, by row and column
};

QAccessibleInterface *accessibleField(const QString &, QObject *object) {
  auto *box = qobject_cast<PictureBox *>(object);
  return box ? new AccessibleField(*box) : nullptr;
}

} // namespace

QString cellName(const Cell &cell) {
  return QString(QChar('A' + cell.X - 1)) + QString::number(cell.Y);
}

void installAccessibleFields() { QAccessible::installFactory(accessibleField); }
