#pragma once

#include <QFont>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <memory>

class Balloon;

/// Balloon hints over one window: a rounded frame with a tip at the pointer, a title with an icon,
/// lines of text. A balloon stays inside an area of the window and on the screen, takes neither
/// focus nor presses, and keeps its own light colours on every desktop.
class HintServer : public QObject {
  Q_OBJECT

public:
  static constexpr int kBalloon = 64;    ///< a `Style`; any other shows a plain box
  static constexpr int kInformation = 1; ///< an icon; any other shows none

  /// `font` is that of the text, its bold form that of the title.
  explicit HintServer(const QFont &font);
  ~HintServer() override;

  void setStyle(int Style);
  void SetTitle(const QString &title, int icon);

  /// Registers a window under a number, in place of the one before, with the area for its balloon,
  /// in pixels of the window.
  void AddTool(QWidget &window, const QRect &area, int ID);
  /// The operations on a number that is not registered do nothing.
  void DelTool(int ID);
  /// Lines are divided by "\n". Until a text is set, each showing asks for it by `NeedText`.
  void SetText(int ID, const QString &text);

  /// The balloon is seen while the server is active, as it is at first, and tracks its tool.
  void setActive(bool active);
  /// Begins at the pointer.
  void Track(bool on, int ID);
  /// Moves the tip to a pixel of the window, or to where the area is nearest to it.
  void MoveTo(const QPoint &tip);

signals:
  void NeedText(int ID, QString &TTText);

private:
  void update();

  QFont font_;
  int style_ = 0;
  QString title_;
  int icon_ = 0;
  int ID_ = 0;
  QString text_;
  bool active_ = true;
  bool tracks_ = false;
  std::unique_ptr<Balloon> balloon_; ///< of the registered window
};
