#include "HelpWindow.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTabBar>
#include <QTemporaryFile>
#include <QTimer>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr QSize kWindow(860, 600);         // pixels
constexpr int kNavigationWidth = 250;      // pixels
constexpr qsizetype kCollection = 250'000; // bytes that it takes at most while it is made
constexpr std::chrono::seconds kSettled{1};

} // namespace

bool Keywords::lessThan(const QModelIndex &left, const QModelIndex &right) const {
  return collator_.compare(left.data().toString(), right.data().toString()) < 0;
}

Pages::Pages(const QHelpEngineCore &book) : book_(book) {
  setContextMenuPolicy(Qt::NoContextMenu); // it would be English
}

QVariant Pages::loadResource(int type, const QUrl &url) {
  if (type == QTextDocument::ImageResource && devicePixelRatio() > 1) {
    QUrl dense = url;
    dense.setPath(url.path().replace(".png", "@2x.png"));
    if (const QByteArray picture = book_.fileData(dense); !picture.isEmpty())
      return picture;
  }
  return book_.fileData(url);
}

HelpWindow::HelpWindow(const QString &file) : book_(folder_.filePath("buch.qhc")) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle("Korvel – Hilfe");
  resize(kWindow.boundedTo(screen()->availableSize()));
  // The style draws no frame that shows where the focus is.
  setStyleSheet("QAbstractScrollArea { border: 1px solid palette(mid); margin: 1px; }"
                "QAbstractScrollArea:focus { border: 2px solid palette(highlight); margin: 0; }");

  book_.setReadOnly(false);
  book_.setUsesFilterEngine(true);
  if (!hasRoom() || !book_.setupData() || !book_.registerDocumentation(file))
    return;
  const QString space = QHelpEngineCore::namespaceName(file);
  const QList<QUrl> pages = book_.files(space, QString(), "html");
  const auto first = std::find_if(pages.begin(), pages.end(),
                                  [](const QUrl &url) { return url.fileName() == "korvel.html"; });
  if (first == pages.end() || book_.fileData(*first).isEmpty())
    return;
  home_ = *first;
  buildContents();
  buildIndex();
  buildText();
  tabs_.setAccessibleName("Inhalt und Index");
  connect(&tabs_, &QTabWidget::currentChanged, this, [this] {
    if (!tabs_.tabBar()->hasFocus()) // where the arrow keys go through the tabs
      enterTab();
  });
  pages_.setSource(home_);
  // Without the folder a killed game leaves nothing. The collection is open; only what loads
  // contents and index opens it once more, and Qt Help starts that several times in a row.
  const auto removeLater = [this] {
    QTimer::singleShot(kSettled, this, [this] {
      if (!book_.contentModel()->isCreatingContents() && !book_.indexModel()->isCreatingIndex())
        folder_.remove();
    });
  };
  connect(book_.contentModel(), &QHelpContentModel::contentsCreated, this, removeLater);
  connect(book_.indexModel(), &QHelpIndexModel::indexCreated, this, removeLater);
}

HelpWindow::~HelpWindow() = default;

bool HelpWindow::hasRoom() const {
  QTemporaryFile file(folder_.filePath("platz"));
  return folder_.isValid() && file.open() &&
         file.write(QByteArray(kCollection, 'x')) == kCollection && file.flush();
}

void HelpWindow::buildContents() {
  QHelpContentWidget *contents = book_.contentWidget();
  contents->setAccessibleName("Inhalt");
  contents->setRootIsDecorated(false);
  tabs_.addTab(contents, "Inhalt");
  const auto showTopic = [this](const QModelIndex &topic) {
    if (const QHelpContentItem *item = book_.contentModel()->contentItemAt(topic))
      pages_.setSource(item->url());
  };
  connect(contents, &QTreeView::clicked, this, showTopic);
  connect(contents, &QTreeView::activated, this, showTopic);
  // The topic of the page that is shown is the one selected.
  const auto select = [contents](const QUrl &page) {
    contents->setCurrentIndex(contents->indexOf(page.adjusted(QUrl::RemoveFragment)));
  };
  connect(&pages_, &QTextBrowser::sourceChanged, this, select);
  connect(book_.contentModel(), &QHelpContentModel::contentsCreated, this,
          [this, select] { select(pages_.source()); });
  book_.contentModel()->createContents(QString());
}

void HelpWindow::buildIndex() {
  keywords_.setSourceModel(book_.indexModel());
  keywords_.setFilterCaseSensitivity(Qt::CaseInsensitive);
  keywords_.sort(0);
  book_.indexModel()->createIndex(QString());
  search_.setPlaceholderText("Stichwort suchen");
  search_.setAccessibleName("Stichwort suchen");
  search_.setClearButtonEnabled(true);
  search_.setContextMenuPolicy(Qt::NoContextMenu);
  index_.setModel(&keywords_);
  index_.setAccessibleName("Stichwörter");
  index_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  index_.setUniformItemSizes(true);

  auto *page = new QWidget;
  auto *column = new QVBoxLayout(page);
  column->setContentsMargins(4, 4, 4, 4);
  column->addWidget(&search_);
  column->addWidget(&index_);
  tabs_.addTab(page, "Index");

  connect(&search_, &QLineEdit::textChanged, this, [this](const QString &text) {
    keywords_.setFilterFixedString(text);
    // What begins with the text comes before what only contains it.
    const QModelIndexList begin =
        keywords_.match(keywords_.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchStartsWith);
    index_.setCurrentIndex(begin.isEmpty() ? keywords_.index(0, 0) : begin.first());
  });
  connect(&search_, &QLineEdit::returnPressed, this,
          [this] { showKeyword(index_.currentIndex()); });
  connect(&index_, &QListView::clicked, this, &HelpWindow::showKeyword);
  connect(&index_, &QListView::activated, this, &HelpWindow::showKeyword);
}

void HelpWindow::buildText() {
  auto *bar = new QToolBar;
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  pages_.setAccessibleName("Text der Hilfe");
  const auto addAction = [&](QStyle::StandardPixmap icon, const QString &text,
                             const QKeySequence &keys, void (QTextBrowser::*go)(),
                             void (QTextBrowser::*available)(bool)) {
    QAction *action = bar->addAction(style()->standardIcon(icon), text);
    action->setShortcut(keys);
    action->setEnabled(false);
    connect(action, &QAction::triggered, &pages_, go);
    connect(&pages_, available, action, &QAction::setEnabled);
  };
  addAction(QStyle::SP_ArrowBack, "Zurück", QKeySequence(Qt::ALT | Qt::Key_Left),
            &QTextBrowser::backward, &QTextBrowser::backwardAvailable);
  addAction(QStyle::SP_ArrowForward, "Vor", QKeySequence(Qt::ALT | Qt::Key_Right),
            &QTextBrowser::forward, &QTextBrowser::forwardAvailable);

  auto *right = new QWidget;
  auto *column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(bar);
  column->addWidget(&pages_);
  auto *splitter = new QSplitter;
  splitter->addWidget(&tabs_);
  splitter->addWidget(right);
  splitter->setSizes({kNavigationWidth, kWindow.width() - kNavigationWidth});
  splitter->setStretchFactor(1, 1);
  auto *whole = new QVBoxLayout(this);
  whole->setContentsMargins(6, 6, 6, 6);
  whole->addWidget(splitter);
}

void HelpWindow::showKeyword(const QModelIndex &keyword) {
  const QList<QHelpLink> links = book_.documentsForKeyword(keyword.data().toString());
  if (!links.isEmpty())
    pages_.setSource(links.first().url);
}

void HelpWindow::open(HelpViewer::Entry entry) {
  tabs_.setCurrentIndex(entry == HelpViewer::Entry::index ? 1 : 0);
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  enterTab();
}

void HelpWindow::enterTab() {
  if (tabs_.currentIndex() == 1)
    search_.setFocus();
  else
    book_.contentWidget()->setFocus();
}

void HelpWindow::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else if (event->key() == Qt::Key_Down && search_.hasFocus())
    index_.setFocus();
  else
    QWidget::keyPressEvent(event);
}
