// The bridge from code that knows no window to the window.
#pragma once

#include <QObject>
#include <QString>

// The one process-wide sender of progress and label text. It keeps no state: with nobody connected
// its signals go nowhere. UpdateProgress and UpdateDialogText may be called on any thread.
class Notify_Adapter : public QObject {
    Q_OBJECT

  public:
    // The one object, made at the first call and belonging to that call's thread. Any thread.
    static Notify_Adapter* GetInstance();

    // Emits sigUpdateProgress: `current` of `total` steps are done.
    void UpdateProgress(int total, int current);
    // Emits sigUpdateDialogText.
    void UpdateDialogText(QString text);

  signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);
};
