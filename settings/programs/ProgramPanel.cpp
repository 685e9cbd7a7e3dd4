// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/programs/ProgramPanel.h"

#include "settings/programs/ProgramDelegate.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace settings {

ProgramPanel::ProgramPanel(ProgramModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_filter(new QSortFilterProxyModel(this))
    , m_search(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_nothing(new QLabel(this))
    , m_progress(new QProgressBar(this))
{
    m_search->setObjectName(QStringLiteral("program_search"));
    m_search->setPlaceholderText(tr("Search programs"));
    m_search->setAccessibleName(tr("Search programs"));
    m_search->setClearButtonEnabled(true);

    m_filter->setSourceModel(model);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_list->setObjectName(QStringLiteral("program_list"));
    m_list->setAccessibleName(tr("Programs"));
    m_list->setAccessibleDescription(tr("Space switches a program's gestures on or off."));
    m_list->setItemDelegate(new ProgramDelegate(m_list));
    // Before the list itself hears of it.
    connect(m_filter, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) { leaveRows(first, last); });
    m_list->setModel(m_filter);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setUniformItemSizes(true);

    m_nothing->setWordWrap(true);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setMargin(12);
    m_nothing->hide();
    m_progress->setObjectName(QStringLiteral("program_progress"));
    m_progress->setAccessibleName(tr("Looking for programs"));
    m_progress->setFormat(tr("Looking for programs..."));
    m_progress->hide();

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_nothing, 1);
    layout->addWidget(m_progress);

    connect(m_search, &QLineEdit::textChanged, this, &ProgramPanel::filter);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) {
                if (!index.isValid())
                    return;
                const QModelIndex before = m_chosen;
                m_chosen = m_filter->mapToSource(index);
                if (m_chosen != before)
                    Q_EMIT chosen(m_chosen.row());
            });
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, [this] { showWhetherEmpty(); });
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, [this] { showWhetherEmpty(); });
}

void ProgramPanel::showProgress(int done, int total)
{
    m_isSearching = true;
    m_progress->setMaximum(total);
    m_progress->setValue(done);
    m_progress->show();
}

void ProgramPanel::hideProgress()
{
    m_isSearching = false;
    m_progress->hide();
    showWhetherEmpty();
}

void ProgramPanel::choose(int row)
{
    const QModelIndex index = m_filter->mapFromSource(m_model->index(row));
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
}

void ProgramPanel::filter(const QString &text)
{
    m_filter->setFilterFixedString(text.trimmed());
    const QModelIndex index = m_filter->mapFromSource(m_chosen);
    if (index.isValid())
        m_list->setCurrentIndex(index);
    showWhetherEmpty();
}

void ProgramPanel::leaveRows(int first, int last)
{
    const int row = m_list->currentIndex().row();
    if (row >= first && row <= last)
        m_list->selectionModel()->clear();
}

void ProgramPanel::showWhetherEmpty()
{
    const bool isEmpty = m_filter->rowCount() == 0 && !m_isSearching;
    m_nothing->setText(m_model->rowCount() == 0
                           ? tr("The desktop's menus show no program in which gestures can work. "
                                "Gestures need a program made with Qt Widgets.")
                           : tr("No program has this in its name."));
    m_nothing->setVisible(isEmpty);
    m_list->setVisible(!isEmpty);
}

} // namespace settings
