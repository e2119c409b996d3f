#include "SizeOptions.h"

#include "announce.h"
#include "pictures.h"

SizeOptions::SizeOptions(QWidget *parent, const QRect &first, int step, int Size) {
  const std::array toolTips{"Schnelles Spiel", "Normales Spiel", "Langes Spiel"};
  auto *group = new QWidget(parent);
  group->setGeometry(first.united(first.translated(2 * step, 0)));
  setRole(*group, QAccessible::Grouping);
  group->setAccessibleName("Größe");
  for (std::size_t i = 0; i < optSize_.size(); ++i) {
    const int index = static_cast<int>(i);
    const QString number = QString::number(index + 1);
    optSize_[i] =
        makeToggle(group, QString("optSize%1").arg(index), {{step * index, 0}, first.size()},
                   "Größe " + number, loadPicture("groesse-" + number), toolTips[i]);
    optSize_[i]->setAutoExclusive(true);
    optSize_[i]->setChecked(index == Size - 1);
  }
}

int SizeOptions::pressed() const {
  for (std::size_t i = 0; i < optSize_.size(); ++i)
    if (optSize_[i]->isChecked())
      return static_cast<int>(i) + 1;
  return 0;
}
