#include "scale.h"

#include <QGuiApplication>

namespace {

/// "1.5" becomes "2", and so does each factor of a list such as "eDP-1=1.5;HDMI-1=1".
QString whole(const QString &factors) {
  QStringList list = factors.split(';');
  for (QString &entry : list) {
    const qsizetype start = entry.lastIndexOf('=') + 1;
    bool isNumber = false;
    const double factor = entry.mid(start).toDouble(&isNumber);
    if (isNumber)
      entry = entry.left(start) + QString::number(std::max(1, qRound(factor)));
  }
  return list.join(';');
}

} // namespace

void keepScalesWhole() {
  for (const char *name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"})
    if (qEnvironmentVariableIsSet(name))
      qputenv(name, whole(qEnvironmentVariable(name)).toLocal8Bit());
  qunsetenv("QT_SCALE_FACTOR_ROUNDING_POLICY"); // which would go before ours
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
}
