#pragma once
// The print preview of a printout. Its pages are composed once, with a
// progress bar and a cancel button, into a page file (compressed, on disk),
// so that a printout of any number of pages is previewed in little memory;
// the window shows one page at a time from it, on the paper of the system's
// default printer, with page navigation and zoom. From it the printout goes
// to a printer chosen in the system's print dialog, or to a PDF file, composed
// again and sent page by page with a progress bar and a cancel button. With
// no printer installed the preview and the PDF file still work.

#include <QDialog>
#include <QPrinter>
#include <functional>
#include <vector>

#include "printing/page_file.h"
#include "shell/ports.h"

class QComboBox;
class QLabel;
class QScrollArea;
class QSpinBox;
class QToolButton;

namespace veroxia {

// Prints the whole printout on the printer it is given, page by page; false
// when it failed (the user told, the job abandoned) or was stopped.
using DrawPrintout = std::function<bool(Printer&)>;

// Composes the printout into a page file, with the progress bar of
// `dialogs`, and shows it, modal over `parent`, until it is closed. Nothing
// is shown when composing failed or the user stopped it.
void ShowPrintPreview(QWidget* parent, Dialogs& dialogs, const PrintJob& job);

// Runs `draw` on `target`: for a printer that prints to a PDF file, on a
// PdfPrinter with the printer's page (so the file appears only when the
// printout is complete); otherwise on a PainterPrinter drawing on it.
bool DrawOn(QPrinter& target, const DrawPrintout& draw);

class SheetView;

// The preview window over composed pages.
class PrintPreviewWindow : public QDialog {
 public:
  // Shows the pages of `pages`, which has ended and outlives the window.
  PrintPreviewWindow(PageFile& pages, Dialogs& dialogs, PrintJob job, QWidget* parent);
  ~PrintPreviewWindow() override;

  // The page shown, from 0; -1 when there is none.
  int Page() const { return page_; }
  void ShowPage(int index);
  // Screen pixels for each pixel of the paper at the screen's resolution.
  double Zoom() const { return zoom_; }

  // The preview's own printer: its paper is the one shown.
  QPrinter& Paper() { return printer_; }

  // "Εκτύπωση...": the print dialog, then the pages to the printer chosen.
  void PrintCmd_Click();
  // "Αποθήκευση ως PDF...": the file chooser, then the pages to the file.
  void SavePdfCmd_Click();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Fit { kWidth, kPage, kNone };
  void BuildToolbar();
  void FitScreen();
  void SetZoom(Fit fit, double zoom);
  void Step(int steps);  // through the fixed zoom levels
  void UpdateZoom();
  void UpdatePageControls();
  // Sends the printout anew to a printer, with the progress bar.
  void Send(const QString& text, const std::function<bool(const DrawPrintout&)>& how);

  PageFile& pages_;
  Dialogs& dialogs_;
  PrintJob job_;
  QPrinter printer_{QPrinter::HighResolution};
  int page_ = -1;
  Fit fit_ = Fit::kWidth;
  double zoom_ = 1;
  SheetView* view_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QSpinBox* page_box_ = nullptr;
  QLabel* page_count_ = nullptr;
  QLabel* zoom_label_ = nullptr;
  QComboBox* zoom_box_ = nullptr;
  std::vector<QToolButton*> back_;     // first and previous page
  std::vector<QToolButton*> forward_;  // next and last page
};

}  // namespace veroxia
