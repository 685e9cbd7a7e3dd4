// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MgDonutDialogManager.h"

#include "bindings/HostCall.h"
#include "bindings/MgDonutDataContainer.h"
#include "dialog/BindingListDocument.h"
#include "dialog/BindingListPrinter.h"
#include "dialog/MgCommandDSModel.h"
#include "dialog/MgCommandDSSortFilterProxyModel.h"
#include "dialog/MgCommandModelDelegate.h"
#include "dialog/MgCommandTableView.h"
#include "dialog/MyStyle.h"
#include "dialog/Notice.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"
#include "sdk/OwnCode.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

namespace {

constexpr int kHelpTopic = 9000;
constexpr int kTextMargin = 2; // pixels, beside the text of a drop-down
constexpr int kFormWidth = 414; // pixels, of the dialog as it is laid out
// The longest description, in characters. The label has room for a few hundred. The layout of a
// million would stop the program for seconds.
constexpr int kLongestDescription = 10000;

struct Direction
{
    const char *image;
    const char *name;
};

// Indexed by direction number - 1 in the eight scheme. The four scheme uses every other entry.
constexpr Direction kDirections[] = {
    {"up.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Up")},
    {"up_left.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Up left")},
    {"left.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Left")},
    {"down_left.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Down left")},
    {"down.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Down")},
    {"down_right.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Down right")},
    {"right.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Right")},
    {"up_right.png", QT_TRANSLATE_NOOP("MgDonutDialogManager", "Up right")},
};

// Null for no direction and for one that the scheme does not have.
const Direction *findDirection(DonutScheme scheme, unsigned char number)
{
    const std::size_t place = scheme == DonutScheme::Eight ? number : 2U * number - 1U;
    return number > 0 && place <= std::size(kDirections) ? &kDirections[place - 1] : nullptr;
}

// The captions of the host's top-level menus without their mnemonic marks, in its order: the
// categories that commands are filed under.
QStringList menuCaptions(const CHxUIMenuItemCollection &menuBars)
{
    QStringList captions;
    for (int bar = 0; bar < menuBars.GetCount(); ++bar) {
        const CHxUIMenuItem *entry = menuBars.GetItem(bar);
        const CHxUIMenuItemCollection *menus = entry ? entry->GetSubItems() : nullptr;
        for (int menu = 0; menus && menu < menus->GetCount(); ++menu) {
            if (const CHxUIMenuItem *item = menus->GetItem(menu)) {
                QString caption = item->GetText().toQString();
                captions.append(caption.remove(QLatin1Char('&')));
            }
        }
    }
    return captions;
}

// The menus of the host; none if it has none to say. Reads its commands and settings as well, if that
// has to be done.
std::optional<QStringList> askHost()
{
    // Try a failed reading again: the container saves nothing after it. Settings may also have
    // changed since the last gesture, and OK would write the old ones over them.
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    if (container->hasReadingFailed() || container->isBehindSettings())
        container->init();
    std::optional<QStringList> captions;
    hostCall([&captions] {
        CHxSystemServices *services = GetHxSystemServices();
        if (const CHxUIMenuItemCollection *menuBars = services ? services->GetMenuItems() : nullptr)
            captions = menuCaptions(*menuBars);
    });
    return captions;
}

// Replaces the menus if the host returns none.
QStringList usedCategories(const QString &others)
{
    QStringList categories;
    for (const MgCommandDS &command : MgDonutDataContainer::instance()->getCommandsDS())
        categories.append(command.category);
    categories.removeAll(others);
    categories.removeDuplicates();
    return categories;
}

// Runs a dialog of the heap and destroys it. If its parent is destroyed meanwhile, it is destroyed with
// the parent and counts as cancelled.
int execGuarded(QDialog *dialog)
{
    const QPointer<QDialog> watched = dialog;
    const int result = dialog->exec();
    if (!watched)
        return QDialog::Rejected;
    delete watched;
    return result;
}

} // namespace

// The host is asked first, because it may destroy the main window meanwhile, and a dialog that is half
// constructed with it.
MgDonutDialogManager::MgDonutDialogManager(QWidget *parent, Qt::WindowFlags flags)
    : MgDonutDialogManager{QPointer<QWidget>(parent), flags, askHost()}
{
}

MgDonutDialogManager::MgDonutDialogManager(const QPointer<QWidget> &parent, Qt::WindowFlags flags,
                                           const std::optional<QStringList> &menuCaptions)
    : CHxDialog(parent, flags != Qt::WindowFlags(), Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
{
    ui.setupUi(this);
    translateButtons();
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    fixWidth();
    fillCategories(menuCaptions);
    setButtonIcons();
    connectControls();
    model = new MgCommandDSModel(this);
    // These are created without a parent by design and then get one. So model, proxy, delegate and style
    // are destroyed with the dialog, after the widgets that use them, which are older children.
    model->setParent(this);
    setUpTable();
    initDialogState();
    setUpRowsAndColumns();
    ui.description_label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_robbedNotice = new Notice(this);
    setUpKeys();
}

MgDonutDialogManager::~MgDonutDialogManager() = default;

// The description becomes wider with the dialog.
void MgDonutDialogManager::setFixedDialogWidth(int newWidth)
{
    setFixedWidth(newWidth);
    const QMargins margins = ui.verticalLayout_5->contentsMargins();
    QGroupBox *box = ui.description_groupBox;
    QLabel *label = ui.description_label;
    const int beside = box->minimumWidth() - label->width();
    box->setMinimumWidth(std::max(box->minimumWidth(), newWidth - margins.left() - margins.right()));
    label->resize(box->minimumWidth() - beside, label->height());
}

// The form's width suits a small font. If the texts need more, in a larger font or another language,
// the dialog and the description become wider by the difference.
void MgDonutDialogManager::fixWidth()
{
    const QMargins margins = ui.verticalLayout_5->contentsMargins();
    const int needed = std::max(ui.verticalLayout_4->minimumSize().width(),
                                ui.horizontalLayout_6->minimumSize().width())
                     + margins.left() + margins.right();
    setFixedDialogWidth(std::max(needed, width()));

    // The description has room for three lines below its title.
    QGroupBox *box = ui.description_groupBox;
    QLabel *label = ui.description_label;
    const int line = fontMetrics().height();
    const int below = box->minimumHeight() - label->geometry().bottom();
    const int top = std::max(label->y(), line + 2);
    label->setGeometry(label->x(), top, label->width(), std::max(label->height(), 3 * line + 4));
    box->setMinimumHeight(label->geometry().bottom() + below);
}

void MgDonutDialogManager::fillCategories(const std::optional<QStringList> &menuCaptions)
{
    // Keep the text for the filter, which must recognise the entry even if the language changes while
    // the dialog is open.
    m_allCommands = tr("All Commands");
    // The category of commands that are in no menu.
    const QString others = QObject::tr("Others");
    ui.category_comboBox->addItem(m_allCommands);
    ui.category_comboBox->addItems(menuCaptions ? *menuCaptions : usedCategories(others));
    ui.category_comboBox->addItem(others);
}

// The images belong to the host. Without them the buttons look as the style draws them.
void MgDonutDialogManager::setButtonIcons()
{
    const auto setIcon = [this](QDialogButtonBox::StandardButton button, const QString &image) {
        if (QFile::exists(image))
            ui.buttonBox->button(button)->setIcon(QIcon(image));
    };
    setIcon(QDialogButtonBox::Ok, QStringLiteral(":/images/shared/ok.png"));
    setIcon(QDialogButtonBox::Cancel, QStringLiteral(":/images/shared/cancel.png"));
    setIcon(QDialogButtonBox::Help, QStringLiteral(":/images/shared/help.png"));
}

// The style's texts are in Qt's own translation, which few programs load. English stays as the
// style has it, with its mnemonics.
void MgDonutDialogManager::translateButtons()
{
    const auto translate = [this](QDialogButtonBox::StandardButton button, const char *english) {
        const QString text = tr(english);
        if (text != QLatin1String(english))
            ui.buttonBox->button(button)->setText(text);
    };
    translate(QDialogButtonBox::Ok, QT_TR_NOOP("OK"));
    translate(QDialogButtonBox::Cancel, QT_TR_NOOP("Cancel"));
    translate(QDialogButtonBox::Help, QT_TR_NOOP("Help"));
}

void MgDonutDialogManager::connectControls()
{
    using Self = MgDonutDialogManager;
    const auto filterByState = QOverload<int>::of(&Self::applyFilter);
    const auto filterByText = QOverload<const QString &>::of(&Self::applyFilter);

    connect(ui.buttonBox->button(QDialogButtonBox::Help), &QPushButton::clicked, this,
            [this] { hostCall([this] { Help(); }); });
    // The box's accepted() stays unconnected on purpose: OK saves before it accepts.
    connect(ui.buttonBox->button(QDialogButtonBox::Ok), &QPushButton::clicked, this, &Self::okPressed);
    connect(ui.reset_pushButton, &QPushButton::clicked, this, &Self::applyDefaultSettings);
    connect(ui.category_comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            filterByState);
    connect(ui.search_lineEdit, &QLineEdit::textChanged, this, filterByText);
    connect(ui.filter_checkBox, &QCheckBox::stateChanged, this, filterByState);
    connect(ui.enableGesture_checkBox, &QCheckBox::stateChanged, this, &Self::checkBoxStateChanged);
    connect(ui.four_radioButton, &QRadioButton::toggled, this, &Self::radioButtonStateChanged);
    connect(ui.eight_radioButton, &QRadioButton::toggled, this, &Self::radioButtonStateChanged);
    connect(ui.print_pushButton, &QPushButton::clicked, this, &Self::printList);
}

void MgDonutDialogManager::setUpTable()
{
    MgCommandTableView *table = ui.command_tableView;
    auto *style = new MyStyle;
    style->setParent(this);
    table->setStyle(style);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->resizeColumnToContents(MgCommandDSModel::kCommandColumn);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    table->setSortingEnabled(true);

    proxy = new MgCommandDSSortFilterProxyModel;
    proxy->setParent(this);
    proxy->setSourceModel(model);
    table->setStyleSheet(
        QStringLiteral("*{selection-color:rgb(0,0,0);selection-background-color:rgb(220,220,220);}"));
    table->setModel(proxy);
    table->setItemDelegate(new MgCommandModelDelegate(&directionList, this));
    table->sortByColumn(MgCommandDSModel::kCategoryColumn, Qt::AscendingOrder);
    connect(table, &MgCommandTableView::pressed, this, &MgDonutDialogManager::openEditor);
}

void MgDonutDialogManager::setUpRowsAndColumns()
{
    MgCommandTableView *table = ui.command_tableView;
    QHeaderView *columns = table->horizontalHeader();
    // The columns get their share of the additional width.
    columns->setDefaultSectionSize(columns->defaultSectionSize() * width() / kFormWidth);
    columns->resizeSection(MgCommandDSModel::kCommandColumn,
                           static_cast<int>(columns->defaultSectionSize() * 2.1));
    // This is only a request: the last section takes the remaining width.
    columns->resizeSection(MgCommandDSModel::kDirectionColumn, 10);
    widenForDirections();
    QHeaderView *rows = table->verticalHeader();
    rows->setDefaultSectionSize(table->fontMetrics().height() + 8);
    rows->setStyleSheet(
        QStringLiteral("QHeaderView::section {padding-bottom: 0px;padding-top: 0px;padding-left: 0px;"
                       "padding-right: 0px;margin: 0px;}"));
}

// "None" is longer in other languages. If its drop-down would cut it off, the dialog becomes wider.
void MgDonutDialogManager::widenForDirections()
{
    MgCommandTableView *table = ui.command_tableView;
    QComboBox sample(table->viewport());
    sample.resize(kFormWidth, sample.sizeHint().height());
    QStyleOptionComboBox option;
    option.initFrom(&sample);
    const QRect inside = sample.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                        QStyle::SC_ComboBoxEditField, &sample);
    const int text = sample.fontMetrics().horizontalAdvance(directionList.item(0)->text());
    const int direction = text + kFormWidth - inside.width() + kTextMargin;

    const QMargins margins = ui.verticalLayout_5->contentsMargins();
    const QHeaderView *columns = table->horizontalHeader();
    const int needed = margins.left() + margins.right() + 2 * table->frameWidth()
                     + table->verticalHeader()->sizeHint().width()
                     + columns->sectionSize(MgCommandDSModel::kCategoryColumn)
                     + columns->sectionSize(MgCommandDSModel::kCommandColumn) + direction
                     + table->verticalScrollBar()->sizeHint().width();
    setFixedDialogWidth(std::max(needed, width()));
}

void MgDonutDialogManager::setUpKeys()
{
    const auto connectKey = [this](const QKeySequence &key, auto &&action) {
        auto *shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, std::forward<decltype(action)>(action));
    };
    connectKey(QKeySequence::Undo, [this] { takeBack(); });
    connectKey(QKeySequence::Find, [this] {
        ui.search_lineEdit->setFocus(Qt::ShortcutFocusReason);
        ui.search_lineEdit->selectAll();
    });
    // The header accepts no keys, so these shortcuts sort.
    for (int column = 0; column < MgCommandDSModel::kColumnCount; ++column)
        connectKey(QKeySequence(int(Qt::CTRL) + int(Qt::Key_1) + column),
                   [this, column] { sortByKey(column); });
    ui.command_tableView->horizontalHeader()->viewport()->setToolTip(
        tr("Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3"));
    ui.search_lineEdit->installEventFilter(this);
    ui.search_lineEdit->setFocus();
}

bool MgDonutDialogManager::eventFilter(QObject *object, QEvent *event)
{
    const gesturewidget::OwnCode ours;
    if (object != ui.search_lineEdit || event->type() != QEvent::KeyPress)
        return CHxDialog::eventFilter(object, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Enter would press OK, in the middle of a search.
        goToFirstCommand();
        return true;
    default:
        return CHxDialog::eventFilter(object, event);
    }
}

void MgDonutDialogManager::goToFirstCommand()
{
    MgCommandTableView *table = ui.command_tableView;
    const QModelIndex first = proxy->index(0, MgCommandDSModel::kDirectionColumn);
    if (!first.isValid())
        return;
    table->selectionModel()->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect
                                                        | QItemSelectionModel::Rows);
    showSelectedCommand();
}

void MgDonutDialogManager::sortByKey(int column)
{
    const gesturewidget::OwnCode ours;
    const bool isAscending = proxy->sortColumn() == column && proxy->sortOrder() == Qt::AscendingOrder;
    ui.command_tableView->sortByColumn(column, isAscending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void MgDonutDialogManager::takeBack()
{
    const gesturewidget::OwnCode ours;
    m_robbedNotice->hide();
    if (model->takeBack())
        nameHolders();
}

void MgDonutDialogManager::directionAssigned(int row, int robbedRow)
{
    nameHolders();
    m_robbedNotice->hide();
    if (robbedRow >= 0)
        showRobbed(row, model->getCommandDisplayName(robbedRow));
}

// Each entry of the list of directions says which command has the direction now.
void MgDonutDialogManager::nameHolders()
{
    for (int row = 1; model && row < directionList.rowCount(); ++row) {
        const auto direction = static_cast<unsigned char>(row);
        const QString name = getDirectionName(direction);
        const QString holder = model->getHolderNames(direction);
        const QString text = holder.isEmpty() ? name : tr("%1: %2").arg(name, holder);
        QStandardItem *item = directionList.item(row);
        item->setData(name, MgCommandModelDelegate::kDirectionNameRole);
        item->setData(text, Qt::AccessibleTextRole);
        item->setToolTip(text.toHtmlEscaped());
    }
}

void MgDonutDialogManager::showRobbed(int row, const QString &robbedName)
{
    const QModelIndex cell = proxy->mapFromSource(model->index(row, MgCommandDSModel::kDirectionColumn));
    if (!cell.isValid())
        return;
    MgCommandTableView *table = ui.command_tableView;
    const QRect place = table->visualRect(cell);
    m_robbedNotice->showFor(tr("Taken from: %1").arg(robbedName),
                            {table->viewport()->mapTo(this, place.topLeft()), place.size()});
}

bool MgDonutDialogManager::isDefaultSettingsEnabled() const
{
    return !ui.four_radioButton->isChecked()
        && MgDonutDataContainer::instance()->isDefaultSettingsEnabled();
}

void MgDonutDialogManager::initDialogState()
{
    const MgDonutDataContainer *container = MgDonutDataContainer::instance();
    const bool four = container->getScheme() == Four;
    (four ? ui.four_radioButton : ui.eight_radioButton)->setChecked(true);
    (four ? ui.eight_radioButton : ui.four_radioButton)->setChecked(false);

    if (container->getGestureEnabled())
        ui.reset_pushButton->setEnabled(!isDefaultSettingsEnabled());
    else
        disableControls(false);
    // Checking the box enables all controls, "Reset to Defaults" included.
    ui.enableGesture_checkBox->setChecked(container->getGestureEnabled());
}

QIcon MgDonutDialogManager::getDirectionIcon(unsigned char direction,
                                             DonutScheme /*ignoredScheme*/) const
{
    const Direction *found = findDirection(scheme, direction);
    return found ? QIcon(QLatin1String(":/gesturewidgetimages/Resources/") + QLatin1String(found->image))
                 : QIcon();
}

QString MgDonutDialogManager::getDirectionName(unsigned char direction) const
{
    if (direction == 0)
        return tr("None");
    const Direction *found = findDirection(scheme, direction);
    return found ? tr(found->name) : QString();
}

int MgDonutDialogManager::GetHelpId() const
{
    return kHelpTopic;
}

QString MgDonutDialogManager::searchText() const
{
    return ui.search_lineEdit->text();
}

QString MgDonutDialogManager::categoryText() const
{
    return ui.category_comboBox->currentText();
}

bool MgDonutDialogManager::showsAssignedOnly() const
{
    return ui.filter_checkBox->isChecked();
}

void MgDonutDialogManager::enableReset()
{
    ui.reset_pushButton->setEnabled(true);
}

// Also enables "Reset to Defaults" when the bindings are the defaults. This is deliberate.
void MgDonutDialogManager::checkBoxStateChanged(int state)
{
    const gesturewidget::OwnCode ours;
    disableControls(state == Qt::Checked);
}

void MgDonutDialogManager::radioButtonStateChanged(bool /*checked*/)
{
    const gesturewidget::OwnCode ours;
    int count = 8;
    scheme = Eight;
    if (ui.four_radioButton->isChecked()) {
        scheme = Four;
        ui.reset_pushButton->setEnabled(true);
        count = 4;
    }

    // Setting the items adds the column and one more row: "None" and each direction.
    directionList.setRowCount(count);
    directionList.setItem(0, new QStandardItem(tr("None")));
    for (int row = 1; row <= count; ++row) {
        const auto direction = static_cast<unsigned char>(row);
        auto *item = new QStandardItem;
        item->setIcon(getDirectionIcon(direction, Eight));
        // A line of text and some room. With arrows alone, the entries would touch.
        item->setSizeHint(QSize(1, 1) * (fontMetrics().height() + 4));
        directionList.setItem(row, item);
    }
    nameHolders();
    applyFilter();
}

void MgDonutDialogManager::applyFilter(const QString & /*text*/)
{
    applyFilter();
}

void MgDonutDialogManager::applyFilter(int /*state*/)
{
    applyFilter();
}

void MgDonutDialogManager::applyFilter()
{
    const gesturewidget::OwnCode ours;
    if (auto *shown = qobject_cast<MgCommandDSSortFilterProxyModel *>(ui.command_tableView->model()))
        shown->applyFilter();
}

void MgDonutDialogManager::okPressed()
{
    const gesturewidget::OwnCode ours;
    const QPointer<MgDonutDialogManager> self = this;
    MgDonutDataContainer::instance()->update(model->getCommands(),
                                             ui.enableGesture_checkBox->isChecked(), scheme);
    if (self)
        accept();
}

void MgDonutDialogManager::disableControls(bool enable)
{
    QWidget *const controls[] = {ui.category_comboBox, ui.search_lineEdit,   ui.filter_checkBox,
                                 ui.four_radioButton,  ui.eight_radioButton, ui.print_pushButton,
                                 ui.reset_pushButton,  ui.command_tableView};
    for (QWidget *control : controls)
        control->setEnabled(enable);
}

void MgDonutDialogManager::viewSelectionChanged(const QItemSelection & /*selected*/,
                                                const QItemSelection & /*deselected*/)
{
    const gesturewidget::OwnCode ours;
    showSelectedCommand();
}

void MgDonutDialogManager::openEditor(const QModelIndex & /*index*/)
{
    const gesturewidget::OwnCode ours;
    showSelectedCommand();
}

// Shows what the selected command does and opens the editor of its direction, for any pressed cell of
// the row.
void MgDonutDialogManager::showSelectedCommand()
{
    MgCommandTableView *table = ui.command_tableView;
    const QModelIndexList rows = table->selectionModel()->selectedRows();
    const bool single = rows.size() <= 1;
    ui.description_groupBox->setEnabled(single);
    ui.description_label->setEnabled(single);
    if (rows.size() != 1) {
        ui.description_label->clear();
        return;
    }

    const QModelIndex shown = rows.front();
    const MgCommandDS *command = model->recordAt(proxy->mapToSource(shown).row());
    ui.description_label->setText(command->tooltip.left(kLongestDescription));
    table->beginEditing(shown.sibling(shown.row(), MgCommandDSModel::kDirectionColumn));
}

bool MgDonutDialogManager::isResetConfirmed()
{
    const QString question = tr("This will delete all of the user defined mouse gestures and reset to "
                                "the factory defaults. Do you want to continue?");
    if (CHxSystemServices *services = GetHxSystemServices()) {
        int answer = CHxSystemServices::kMessageCancel;
        hostCall([&] {
            answer = services->ShowMessage(question, services->GetMessageCaption(),
                                           CHxSystemServices::kMessageOkCancelWarning);
        });
        return answer == CHxSystemServices::kMessageOk;
    }
    return execGuarded(new QMessageBox(QMessageBox::Warning, windowTitle(), question,
                                       QMessageBox::Ok | QMessageBox::Cancel, this))
        == QMessageBox::Ok;
}

void MgDonutDialogManager::applyDefaultSettings()
{
    const gesturewidget::OwnCode ours;
    const QPointer<MgDonutDialogManager> self = this;
    if (!isResetConfirmed() || !self)
        return;
    MgDonutDataContainer::instance()->applyDefaultSettings();
    if (!self)
        return;
    model->resetToDefault();
    nameHolders();
    ui.eight_radioButton->setChecked(true);
    ui.reset_pushButton->setEnabled(!isDefaultSettingsEnabled());
}

int MgDonutDialogManager::runPrintDialog(QPrinter &printer)
{
    return execGuarded(new QPrintDialog(&printer, this));
}

void MgDonutDialogManager::printList()
{
    const gesturewidget::OwnCode ours;
    QPrinter printer(QPrinter::HighResolution);
    // PDF files and print queues show this title.
    printer.setDocName(windowTitle());
    const QPointer<MgDonutDialogManager> self = this;
    if (runPrintDialog(printer) != QDialog::Accepted || !self)
        return;
    const std::unique_ptr<QTextDocument> document(
        createBindingListDocument(ui.command_tableView->model()));
    printBindingList(*document, printer);
}
