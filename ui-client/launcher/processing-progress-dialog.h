// The one window of the program.
#pragma once

#include <QProgressDialog>

constexpr char kWindowFontFamily[] = "Arial";

// A small progress window from 0 to 100, hidden until it is shown. Main thread, like every widget.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

  public:
    // Texts are translated here: translator and string table must be ready.
    ProcessingProgressDialog();
    ~ProcessingProgressDialog() override;
};
