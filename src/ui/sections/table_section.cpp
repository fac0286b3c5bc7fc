#include "ui/sections/table_section.h"

#include "ui/elements/card_background.h"
#include "ui/sections/detail_log.h"
#include "ui/style/metrics.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace tarvo::ui {

TableSection::TableSection(DetailContext& context, const SectionTitle& title, RecordTableModel& model,
                           QWidget* parent)
    : Section(context, title, parent), model_(model),
      search_(new SearchField([this](const QString& query) { setQuery(query); })),
      table_(new TableView(model, &context.panel.icons, this)) {
    auto* content = new QVBoxLayout;
    content->setContentsMargins(metrics::medium, 0, metrics::medium, metrics::medium);
    content->setSpacing(metrics::regular);
    content->addWidget(search_);
    content->addWidget(new CardBackground(table_, this), 1);
    column()->addLayout(content, 1);
    search_->installEventFilter(this);
    setTabOrder(search_, table_);
    connect(&model, &QAbstractItemModel::layoutChanged, this, [this] { logTable(); });
}

void TableSection::setTexts(const LKey& prompt, const LKey& tableName) {
    prompt_ = prompt;
    tableName_ = tableName;
}

void TableSection::setQuery(const QString& query) {
    model_.setQuery(query);
    table_->showCurrentOrTop();
}

void TableSection::logTable() const {
    if (!detailLog().isDebugEnabled()) return;
    QStringList first;
    for (int column = 0; model_.rowCount() > 0 && column < model_.columnCount(); ++column)
        first << model_.text(model_.record(0), column);
    qCDebug(detailLog, "table %d of %zu, column %d %s, first \"%s\"", model_.rowCount(), model_.recordCount(),
            model_.sortColumn(), model_.sortOrder() == Qt::AscendingOrder ? "up" : "down",
            qUtf8Printable(first.join(QLatin1Char('|'))));
}

void TableSection::refresh() {
    const AppLanguage language = context_.panel.loc.language();
    if (shownLanguage_ == language) return;
    if (shownLanguage_) model_.retranslate();
    shownLanguage_ = language;
    search_->setPrompt(t(prompt_));
    search_->setClearName(t({.cs = "Vymazat", .en = "Clear"}));
    table_->setAccessibleName(QString::fromStdString(t(tableName_)));
}

bool TableSection::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = watched == search_ && event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        table_->setFocus(Qt::TabFocusReason);
        if (!table_->currentIndex().isValid() && model_.rowCount() > 0) table_->selectRow(0);
        return true;
    }
    return Section::eventFilter(watched, event);
}

void TableSection::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Find)) {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    } else if (event->matches(QKeySequence::Refresh)) {
        reload();
    } else {
        Section::keyPressEvent(event);
    }
}

void TableSection::contextMenuEvent(QContextMenuEvent* event) {
    if (!table_->selectionModel()->hasSelection()) return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copy = menu->addAction(QString::fromStdString(t({.cs = "Kopírovat", .en = "Copy"})));
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QAction::triggered, table_, [this] { table_->copySelection(); });
    menu->popup(event->globalPos());
}

} // namespace tarvo::ui
