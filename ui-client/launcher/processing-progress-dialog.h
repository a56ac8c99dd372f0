// The progress window.
#pragma once

#include <QProgressDialog>

constexpr char kWindowFontFamily[] = "Arial";

// Progress from 0 to 100. Hidden at first. Main thread.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

  public:
    // Precondition: translator and string table are set up.
    ProcessingProgressDialog();
    ~ProcessingProgressDialog() override;
};
