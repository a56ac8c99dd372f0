// Sends progress and texts to the window.
#pragma once

#include <QObject>
#include <QString>

// The sender of progress and label texts. Has no state. Any thread may call UpdateProgress and
// UpdateDialogText.
class Notify_Adapter : public QObject {
    Q_OBJECT

  public:
    // The only object, created by the first call, on the thread of that call. Any thread.
    static Notify_Adapter* GetInstance();

    // Emits sigUpdateProgress: `current` of `total` steps are done.
    void UpdateProgress(int total, int current);
    // Emits sigUpdateDialogText.
    void UpdateDialogText(QString text);

  signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);
};
