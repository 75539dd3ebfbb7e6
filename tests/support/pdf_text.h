#pragma once
// Reads a printed PDF back as text, through pdftotext (poppler-utils). Its
// text layout narrows gaps between words and runs of empty lines, so the
// pages are rebuilt from where it finds each word instead: exactly the text
// that was printed, for a page of a monospaced font.

#include <QList>
#include <QString>
#include <QStringList>

namespace veroxia::testing {

// Whether pdftotext can be run here.
bool HavePdfToText();

// The pages of a PDF file of one monospaced font, rebuilt from where
// pdftotext finds each word (its bounding box): the row from the top margin
// in line spacings, the column from the left margin in character widths,
// both measured off the words themselves. Unlike the text layout, this keeps
// every empty line above and between texts. Lines lose the blanks at their
// ends; a page, the empty lines below its last text.
QList<QStringList> PdfPagesByPosition(const QString& path, double margin = 10);

}  // namespace veroxia::testing
