// The progress window.
#include "ui-client/launcher/processing-progress-dialog.h"

#include <QFont>
#include <QIcon>
#include <limits>

#include "ui-client/launcher/qt-text.h"
#include "ui-client/launcher/quillmere-service.h"
#include "ui-client/launcher/str-table.h"

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags()) {
    // The base class shows itself after its minimum duration.
    setMinimumDuration(std::numeric_limits<int>::max());
    const QFont font(kWindowFontFamily, -1, -1, false);
    const ustring icon =
        Service::GetRootQuillmereResourceInstallPath() + "/images/ico_72_quillmere.png";
    setWindowTitle(StrTable::LoadStr(StrTable::kAppName));
    setWindowIcon(QIcon(ToQString(icon)));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kEnvironmentPreparing));
    setFont(font);
    setFixedWidth(400);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(" QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
}

ProcessingProgressDialog::~ProcessingProgressDialog() {}
