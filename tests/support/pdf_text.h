#pragma once
// Reads a printed PDF back as text, the way a person would copy it off the
// page: through pdftotext (poppler-utils), keeping the layout. Plain
// `-layout` narrows a gap between words that nothing on the other lines
// lines up with, so the characters are placed in columns of the font's fixed
// pitch (`-fixed`) counted from the left margin: exactly the text that was
// printed, for a page of a monospaced font.

#include <QList>
#include <QString>
#include <QStringList>

namespace veroxia::testing {

// Whether pdftotext can be run here.
bool HavePdfToText();

// Where the columns of a page are.
struct PdfColumns {
  double pitch = 6;  // points: Courier New and Liberation Mono at 10 points
  int left = 10;     // points: the margin of the PDF files we print
};

// The text of the PDF file read by pdftotext in the columns given: each
// page's lines, each page ended by a form feed. A failed run fails the test
// and answers an empty text.
QString PdfText(const QString& path, const PdfColumns& columns = {});

// Such a text as its pages, each the list of its lines without the blanks at
// their ends. Empty lines above a page's first text and below its last do
// not come back.
QList<QStringList> PdfPages(const QString& text);

// The pages of a PDF file of one monospaced font, rebuilt from where
// pdftotext finds each word (its bounding box): the row from the top margin
// in line spacings, the column from the left margin in character widths,
// both measured off the words themselves. Unlike the text layout, this keeps
// every empty line above and between texts. Lines lose the blanks at their
// ends; a page, the empty lines below its last text.
QList<QStringList> PdfPagesByPosition(const QString& path, double margin = 10);

}  // namespace veroxia::testing
