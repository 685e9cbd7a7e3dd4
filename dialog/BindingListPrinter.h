// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class QPrinter;
class QTextDocument;

// Prints a document that createBindingListDocument() made: 2 cm margins, a page number at the
// bottom, the header row on top of every page, and no row across two pages unless it is higher
// than a page. Qt's own printing lets each cell break where it likes.
//
// Prints nothing when the printer cannot be opened or the document has no table.
void printBindingList(const QTextDocument &document, QPrinter &printer);
