// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class MgCommandTableView;
class QCheckBox;
class QComboBox;
class QDialog;
class QDialogButtonBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

// The form of the configuration dialog. Every object carries its member's name; all of them
// belong to the dialog that setupUi() was given.
class Ui_MgDonutDialogManagerClass
{
public:
    // Fills an empty dialog and connects the button box's rejected() to its reject().
    void setupUi(QDialog *dialog);
    // Sets all texts in the current language.
    void retranslateUi(QDialog *dialog);

    QVBoxLayout *verticalLayout_5 = nullptr;
    QVBoxLayout *verticalLayout_4 = nullptr;
    QHBoxLayout *horizontalLayout_8 = nullptr;
    QVBoxLayout *verticalLayout_2 = nullptr;
    QHBoxLayout *horizontalLayout_5 = nullptr;
    QLabel *category_label = nullptr;
    QComboBox *category_comboBox = nullptr;
    QCheckBox *filter_checkBox = nullptr;
    QHBoxLayout *horizontalLayout_7 = nullptr;
    QLabel *search_label = nullptr;
    QLineEdit *search_lineEdit = nullptr;
    QVBoxLayout *verticalLayout_3 = nullptr;
    QHBoxLayout *horizontalLayout_3 = nullptr;
    QCheckBox *enableGesture_checkBox = nullptr;
    QHBoxLayout *horizontalLayout_2 = nullptr;
    QVBoxLayout *verticalLayout = nullptr;
    QRadioButton *four_radioButton = nullptr;
    QRadioButton *eight_radioButton = nullptr;
    QHBoxLayout *horizontalLayout_4 = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    QPushButton *reset_pushButton = nullptr;
    QPushButton *print_pushButton = nullptr;
    MgCommandTableView *command_tableView = nullptr;
    QGroupBox *description_groupBox = nullptr;
    QLabel *description_label = nullptr;
    QHBoxLayout *horizontalLayout_6 = nullptr;
    QDialogButtonBox *buttonBox = nullptr;

private:
    void createFilters(QDialog *dialog);
    void createSwitches(QDialog *dialog);
    void createList(QDialog *dialog);
    void createDescription(QDialog *dialog);
    void createButtons(QDialog *dialog);
};

namespace Ui {
class MgDonutDialogManagerClass : public Ui_MgDonutDialogManagerClass
{
};
} // namespace Ui
