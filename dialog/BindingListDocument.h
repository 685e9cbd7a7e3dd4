// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class QAbstractItemModel;
class QTextDocument;

// A document with the rows of any table model, in the model's order, under a row with its
// column headers: texts, fonts, colours, alignments and icons as the model gives them. It has
// no table when the model is null or has no columns. The caller owns it.
[[nodiscard]] QTextDocument *createBindingListDocument(QAbstractItemModel *model);
