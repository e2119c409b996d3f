#include "frmOptions.h"

#include "pictures.h"

namespace {

// Crossed out while the switch is off.
QIcon switchIcon(const QString &name) {
  QIcon icon;
  icon.addPixmap(loadPicture(name + "-aus"), QIcon::Normal, QIcon::Off);
  icon.addPixmap(loadPicture(name + "-an"), QIcon::Normal, QIcon::On);
  return icon;
}

} // namespace

frmOptions::frmOptions(QWidget *main, Settings &settings, SettingsStore &store)
    : Dialog(main, {388, 228}, ""), settings_(settings), store_(store),
      picHinten_(makePicture(this, {2, 2, 385, 225}, "optionen-hintergrund")),
      chkSound_(makeToggle(picHinten_, "chkSound", {16, 96, 49, 49}, "", switchIcon("ton"),
                           "Soundeffekte während des Spieles ein-/ausschalten.")),
      chkHelp_(makeToggle(picHinten_, "chkHelp", {72, 96, 49, 49}, "", switchIcon("hilfe"))),
      optSize_(picHinten_, {152, 96, 65, 49}, 72, settings.StdSize) {
  setAccessibleName("Optionen");
  chkSound_->setAccessibleName("Sound");
  chkSound_->setChecked(settings.Sound != 0);
  chkHelp_->setAccessibleName("Hilfe");
  chkHelp_->setChecked(settings.Help == 1);

  auto *imgÜberschrift = makePicture(picHinten_, {80, 8, 228, 49}, "banner-optionen");
  imgÜberschrift->setObjectName("imgÜberschrift");
  imgÜberschrift->setScaledContents(true);
  const std::tuple<int, const char *, QRect> labels[] = {
      {0, "Sound:", {16, 72, 49, 16}},
      {2, "Hilfe:", {80, 72, 37, 16}},
      {1, "Standardspielfeldgröße:", {176, 72, 169, 16}}};
  for (const auto &[index, text, place] : labels) {
    auto *label = new QLabel(text, picHinten_);
    label->setObjectName(QString("lblBeschriftung%1").arg(index));
    dress(*label, place, {sansFont(9.75, QFont::Bold), Qt::white});
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  }

  auto *cmdÜbernehmen = new BlueButton(picHinten_, "cmdÜbernehmen", {112, 184, 73, 25},
                                       "&Übernehmen", "Einstellungen übernehmen");
  auto *cmdAbbruch = new BlueButton(picHinten_, "cmdAbbruch", {192, 184, 73, 25}, "&Abbrechen",
                                    "Dialog abbrechen");
  connect(cmdÜbernehmen, &QPushButton::clicked, this, &frmOptions::cmdÜbernehmen_Click);
  connect(cmdAbbruch, &QPushButton::clicked, this, &QWidget::close);
}

void frmOptions::cmdÜbernehmen_Click() {
  settings_.Sound = chkSound_->isChecked() ? 1 : 0;
  settings_.Help = chkHelp_->isChecked() ? 1 : 0;
  settings_.StdSize = static_cast<std::uint8_t>(optSize_.pressed());
  settings_.write(store_);
  close();
}
