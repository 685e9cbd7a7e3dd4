// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/Ui_MgDonutDialogManagerClass.h"

#include "dialog/MgCommandTableView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpacerItem>
#include <QVBoxLayout>

namespace {

constexpr int kSpacing = 6; // pixels, inside every box layout
constexpr int kMargin = 11; // pixels, around the dialog's content

// It takes the spacing of the layout that it is put into.
template <class Layout> Layout *newLayout(const char *name)
{
    auto *layout = new Layout;
    layout->setObjectName(QLatin1String(name));
    return layout;
}

template <class Widget> Widget *newWidget(const char *name, QWidget *parent)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QSpacerItem *newSpacer(int width, int height)
{
    return new QSpacerItem(width, height, QSizePolicy::Expanding, QSizePolicy::Minimum);
}

} // namespace

void Ui_MgDonutDialogManagerClass::setupUi(QDialog *dialog)
{
    if (dialog->objectName().isEmpty())
        dialog->setObjectName(QStringLiteral("MgDonutDialogManagerClass"));
    dialog->resize(414, 576);

    verticalLayout_5 = new QVBoxLayout(dialog);
    verticalLayout_5->setSpacing(kSpacing);
    verticalLayout_5->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    verticalLayout_5->setObjectName(QStringLiteral("verticalLayout_5"));

    verticalLayout_4 = newLayout<QVBoxLayout>("verticalLayout_4");
    verticalLayout_4->setSizeConstraint(QLayout::SetFixedSize);
    horizontalLayout_8 = newLayout<QHBoxLayout>("horizontalLayout_8");
    // Tab goes from control to control in the order in which they are created.
    createFilters(dialog);
    createSwitches(dialog);
    verticalLayout_4->addLayout(horizontalLayout_8);
    createList(dialog);
    createDescription(dialog);
    createButtons(dialog);

    retranslateUi(dialog);
    QObject::connect(buttonBox, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QMetaObject::connectSlotsByName(dialog);
}

void Ui_MgDonutDialogManagerClass::createFilters(QDialog *dialog)
{
    verticalLayout_2 = newLayout<QVBoxLayout>("verticalLayout_2");

    horizontalLayout_5 = newLayout<QHBoxLayout>("horizontalLayout_5");
    category_label = newWidget<QLabel>("category_label", dialog);
    horizontalLayout_5->addWidget(category_label);
    category_comboBox = newWidget<QComboBox>("category_comboBox", dialog);
    QSizePolicy comboPolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    comboPolicy.setVerticalStretch(1);
    category_comboBox->setSizePolicy(comboPolicy);
    // The dialog's width is fixed: a menu with a very long caption must not push the rest out.
    category_comboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    horizontalLayout_5->addWidget(category_comboBox, 1);
    verticalLayout_2->addLayout(horizontalLayout_5);

    filter_checkBox = newWidget<QCheckBox>("filter_checkBox", dialog);
    verticalLayout_2->addWidget(filter_checkBox);

    horizontalLayout_7 = newLayout<QHBoxLayout>("horizontalLayout_7");
    search_label = newWidget<QLabel>("search_label", dialog);
    horizontalLayout_7->addWidget(search_label);
    search_lineEdit = newWidget<QLineEdit>("search_lineEdit", dialog);
    search_lineEdit->setClearButtonEnabled(true);
    horizontalLayout_7->addWidget(search_lineEdit);
    verticalLayout_2->addLayout(horizontalLayout_7);

    category_label->setBuddy(category_comboBox);
    search_label->setBuddy(search_lineEdit);
    horizontalLayout_8->addLayout(verticalLayout_2);
}

void Ui_MgDonutDialogManagerClass::createSwitches(QDialog *dialog)
{
    verticalLayout_3 = newLayout<QVBoxLayout>("verticalLayout_3");

    horizontalLayout_3 = newLayout<QHBoxLayout>("horizontalLayout_3");
    horizontalLayout_3->addItem(newSpacer(38, 20));
    enableGesture_checkBox = newWidget<QCheckBox>("enableGesture_checkBox", dialog);
    horizontalLayout_3->addWidget(enableGesture_checkBox);
    verticalLayout_3->addLayout(horizontalLayout_3);

    horizontalLayout_2 = newLayout<QHBoxLayout>("horizontalLayout_2");
    horizontalLayout_2->addItem(newSpacer(58, 20));
    verticalLayout = newLayout<QVBoxLayout>("verticalLayout");
    four_radioButton = newWidget<QRadioButton>("four_radioButton", dialog);
    verticalLayout->addWidget(four_radioButton);
    eight_radioButton = newWidget<QRadioButton>("eight_radioButton", dialog);
    verticalLayout->addWidget(eight_radioButton);
    horizontalLayout_2->addLayout(verticalLayout);
    horizontalLayout_2->addItem(newSpacer(18, 45));
    verticalLayout_3->addLayout(horizontalLayout_2);

    horizontalLayout_8->addLayout(verticalLayout_3);
}

void Ui_MgDonutDialogManagerClass::createList(QDialog *dialog)
{
    horizontalLayout_4 = newLayout<QHBoxLayout>("horizontalLayout_4");
    horizontalLayout_4->addItem(newSpacer(188, 17));
    horizontalLayout = newLayout<QHBoxLayout>("horizontalLayout");
    reset_pushButton = newWidget<QPushButton>("reset_pushButton", dialog);
    horizontalLayout->addWidget(reset_pushButton);
    print_pushButton = newWidget<QPushButton>("print_pushButton", dialog);
    horizontalLayout->addWidget(print_pushButton);
    horizontalLayout_4->addLayout(horizontalLayout);
    verticalLayout_4->addLayout(horizontalLayout_4);
    verticalLayout_5->addLayout(verticalLayout_4);

    command_tableView = newWidget<MgCommandTableView>("command_tableView", dialog);
    QSizePolicy tablePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    tablePolicy.setHorizontalStretch(1);
    tablePolicy.setVerticalStretch(1);
    command_tableView->setSizePolicy(tablePolicy);
    command_tableView->setWordWrap(false);
    // The arrow keys move between cells. Tab leaves the table, because no other key reaches the buttons
    // below.
    command_tableView->setTabKeyNavigation(false);
    verticalLayout_5->addWidget(command_tableView);
}

void Ui_MgDonutDialogManagerClass::createDescription(QDialog *dialog)
{
    description_groupBox = newWidget<QGroupBox>("description_groupBox", dialog);
    description_groupBox->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    description_groupBox->setMinimumSize(396, 91);
    description_label = newWidget<QLabel>("description_label", description_groupBox);
    description_label->setGeometry(10, 20, 371, 61);
    // Keep the text off the frame, which is drawn where the label begins.
    description_label->setContentsMargins(0, 4, 0, 0);
    description_label->setWordWrap(true);
    // A tip comes from the program's menus. Anything in it that looks like markup is text.
    description_label->setTextFormat(Qt::PlainText);
    verticalLayout_5->addWidget(description_groupBox);
}

void Ui_MgDonutDialogManagerClass::createButtons(QDialog *dialog)
{
    horizontalLayout_6 = newLayout<QHBoxLayout>("horizontalLayout_6");
    horizontalLayout_6->addItem(newSpacer(228, 20));
    buttonBox = newWidget<QDialogButtonBox>("buttonBox", dialog);
    buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                  | QDialogButtonBox::Help);
    horizontalLayout_6->addWidget(buttonBox);
    verticalLayout_5->addLayout(horizontalLayout_6);
}

void Ui_MgDonutDialogManagerClass::retranslateUi(QDialog *dialog)
{
    dialog->setWindowTitle(QCoreApplication::translate("MgDonutDialogManagerClass", "Mouse Gestures"));
    category_label->setText(QCoreApplication::translate("MgDonutDialogManagerClass", "Category:"));
    filter_checkBox->setText(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Mouse Gesture assigned commands"));
    search_label->setText(QCoreApplication::translate("MgDonutDialogManagerClass", "Search for:"));
    enableGesture_checkBox->setText(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Enable mouse gestures"));
    four_radioButton->setText(QCoreApplication::translate("MgDonutDialogManagerClass", "4 Gestures"));
    eight_radioButton->setText(QCoreApplication::translate("MgDonutDialogManagerClass", "8 Gestures"));
    reset_pushButton->setText(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Reset to Defaults"));
    print_pushButton->setText(QCoreApplication::translate("MgDonutDialogManagerClass", "Print List"));
    description_groupBox->setTitle(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Description"));

    category_comboBox->setAccessibleName(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Category"));
    search_lineEdit->setAccessibleName(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Search for commands"));
    command_tableView->setAccessibleName(
        QCoreApplication::translate("MgDonutDialogManagerClass", "Commands and their gestures"));
}
