#include <OrvaneExportKit/windowing/DictionaryTable.h>

#include <OrvaneExportKit/windowing/DictionaryModel.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QEvent>
#include <QtGui/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace windowing {

namespace {

const auto registration = WidgetClassRegistration::of<DictionaryTable>();

} // namespace

DictionaryTable::DictionaryTable(QWidget *parent)
    : QWidget(parent),
      m_model(new DictionaryModel(this)),
      m_table(new QTableView(this)),
      m_addButton(new QPushButton(this)),
      m_removeButton(new QPushButton(this)),
      m_upButton(new QPushButton(this)),
      m_downButton(new QPushButton(this))
{
    m_table->setModel(m_model);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    setFocusProxy(m_table);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_addButton);
    buttons->addWidget(m_removeButton);
    buttons->addStretch();
    buttons->addWidget(m_upButton);
    buttons->addWidget(m_downButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_table);
    layout->addLayout(buttons);

    auto *removeAction = new QAction(m_table);
    removeAction->setShortcut(QKeySequence::Delete);
    removeAction->setShortcutContext(Qt::WidgetShortcut);
    m_table->addAction(removeAction);

    for (QPushButton *button : {m_addButton, m_removeButton, m_upButton, m_downButton}) {
        button->setAutoDefault(false); // Return edits a cell in a dialog too
    }
    const auto onRequest = [this](auto *sender, auto requested, const auto &work) {
        connect(sender, requested, this, [this, work] { guardedAction(*this, work); });
    };
    onRequest(m_addButton, &QPushButton::clicked, [this] { addRow(); });
    onRequest(m_removeButton, &QPushButton::clicked, [this] { removeRow(); });
    onRequest(m_upButton, &QPushButton::clicked, [this] { moveRow(-1); });
    onRequest(m_downButton, &QPushButton::clicked, [this] { moveRow(1); });
    onRequest(removeAction, &QAction::triggered, [this] { removeRow(); });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &DictionaryTable::updateButtons);
    for (const auto changed : {&DictionaryModel::rowsInserted, &DictionaryModel::rowsRemoved}) {
        connect(m_model, changed, this, &DictionaryTable::contentChanged);
    }
    connect(m_model, &DictionaryModel::dataChanged, this, &DictionaryTable::contentChanged);
    connect(m_model, &DictionaryModel::rowsMoved, this, &DictionaryTable::contentChanged);
    connect(this, &DictionaryTable::contentChanged, this, &DictionaryTable::updateButtons);
    setTexts();
    updateButtons();
}

QStringList DictionaryTable::keys() const
{
    return m_model->keys();
}

void DictionaryTable::setKeys(const QStringList &keys)
{
    m_model->setKeys(keys);
    fitColumns();
}

QStringList DictionaryTable::booleanKeys() const
{
    return m_model->booleanKeys();
}

void DictionaryTable::setBooleanKeys(const QStringList &keys)
{
    m_model->setBooleanKeys(keys);
    fitColumns();
}

QString DictionaryTable::columnTitles() const
{
    return m_model->titles().join(u'\n');
}

void DictionaryTable::setColumnTitles(const QString &titles)
{
    m_model->setTitles(titles.split(u'\n'));
}

QVariantList DictionaryTable::content() const
{
    return {m_model->content().begin(), m_model->content().end()};
}

void DictionaryTable::setContent(const QVariantList &content)
{
    if (content == this->content()) {
        return;
    }
    QList<QVariantMap> objects;
    for (const QVariant &object : content) {
        objects.append(object.toMap());
    }
    const QModelIndex current = m_table->currentIndex();
    forgetToldErrors(*m_model);
    m_model->setContent(objects);
    m_table->setCurrentIndex(m_model->index(std::min(current.row(), m_model->rowCount() - 1), current.column()));
    Q_EMIT contentChanged();
}

void DictionaryTable::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        guardedDisplay(*this, [this] { setTexts(); });
    }
}

void DictionaryTable::showEvent(QShowEvent *event)
{
    m_table->setAccessibleName(accessibleName());
    QWidget::showEvent(event);
}

void DictionaryTable::setTexts()
{
    m_addButton->setText(tr("&Add"));
    m_removeButton->setText(tr("&Remove"));
    m_upButton->setText(tr("Move &Up"));
    m_downButton->setText(tr("Move Do&wn"));
}

/// Texts share the width that check boxes leave them.
void DictionaryTable::fitColumns()
{
    QHeaderView *header = m_table->horizontalHeader();
    for (int column = 0; column < m_model->columnCount(); ++column) {
        header->setSectionResizeMode(column,
                                     m_model->isBoolean(column) ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
    }
}

void DictionaryTable::updateButtons()
{
    const int row = currentRow();
    m_removeButton->setEnabled(row >= 0);
    m_upButton->setEnabled(row > 0);
    m_downButton->setEnabled(row >= 0 && row + 1 < m_model->rowCount());
}

int DictionaryTable::currentRow() const
{
    return m_table->currentIndex().row();
}

void DictionaryTable::addRow()
{
    const int row = currentRow() < 0 ? m_model->rowCount() : currentRow() + 1;
    m_model->insertObject(row, m_model->emptyObject());
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (!m_model->isBoolean(column)) {
            const QModelIndex first = m_model->index(row, column);
            m_table->setFocus();
            m_table->setCurrentIndex(first);
            m_table->edit(first);
            return;
        }
    }
}

void DictionaryTable::removeRow()
{
    if (currentRow() >= 0) {
        m_model->removeObject(currentRow());
    }
}

void DictionaryTable::moveRow(int distance)
{
    m_model->moveObject(currentRow(), currentRow() + distance);
}

} // namespace windowing
