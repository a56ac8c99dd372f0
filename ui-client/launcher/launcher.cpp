// The run: main thread and worker thread.
#include "ui-client/launcher/launcher.h"

#include <QCoreApplication>
#include <climits>

#include "log.h"
#include "platform/process/supervisor.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/processing-progress-dialog.h"
#include "ui-client/launcher/str-table.h"

#define LOG_TAG "launcher"

namespace {

const ustring kLogComponent("launcher_debug");

}  // namespace

HandlerThread::HandlerThread() : QThread(nullptr) {}

HandlerThread::~HandlerThread() {
    quit();
    wait(ULONG_MAX);
}

void HandlerThread::run() {
    exec();
}

Worker::Worker() : QObject(nullptr) {
    m_service = new MacService;
    m_thread = new HandlerThread;
    moveToThread(m_thread);
}

Worker::~Worker() {
    FinishRun();
    delete m_thread;
    delete m_service;
}

void Worker::StartThread() {
    m_thread->start(QThread::InheritPriority);
    if (!m_thread->isRunning()) {
        delete m_thread;
        m_thread = nullptr;
        moveToThread(QThread::currentThread());
    }
}

void Worker::QuitThread() {
    if (m_thread != nullptr) {
        m_thread->quit();
    }
}

void Worker::JoinThread() {
    if (m_thread != nullptr) {
        m_thread->wait(ULONG_MAX);
    }
}

bool Worker::HasThread() const {
    return m_thread != nullptr;
}

void Worker::FinishRun() {
    if (m_thread == nullptr || !m_thread->isRunning()) {
        return;
    }
    // QThread::quit() would skip a start that is still in the queue, so quit after it.
    QObject* const last = new QObject;
    last->moveToThread(m_thread);
    connect(last, SIGNAL(destroyed()), m_thread, SLOT(quit()), Qt::DirectConnection);
    last->deleteLater();
    JoinThread();
}

void Worker::HandleServicce() {
    Logger::LogMsg(LOG_LINE(DEBUG, "running\n"));
    m_service->PreUpgrade();
    if (m_service->IsNeedUpgrade()) {
        emit sigShowMsg();
        if (m_service->HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(StrTable::kEnvironmentReady));
        } else {
            Logger::LogMsg(LOG_LINE(ERROR, "Failed to upgrade package\n"));
        }
    } else {
        Logger::LogMsg(LOG_LINE(DEBUG, "no need to upgrade\n"));
    }
    m_service->RemoveAgedFolders();
    m_service->PostUpgrade();
    Logger::LogMsg(LOG_LINE(DEBUG, "done\n"));
    emit sigServiceDone();
    ReportStage(Stage::kOpened);
}

Launcher::Launcher() : QObject(nullptr) {
    m_worker = new Worker;
    m_dialog = new ProcessingProgressDialog;
    m_dialog->setCancelButton(nullptr);
    m_dialog->setAutoReset(false);

    connect(this, SIGNAL(sigStart()), m_worker, SLOT(HandleServicce()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)),
            Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)),
            Qt::AutoConnection);
    connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)), this,
            SLOT(UpdateProgress(int, int)), Qt::AutoConnection);
    connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)), this,
            SLOT(SetLabelText(QString)), Qt::AutoConnection);
}

Launcher::~Launcher() {
    delete m_worker;
    delete m_dialog;
}

void Launcher::Run() {
    m_worker->StartThread();
}

bool Launcher::HasThread() const {
    return m_worker->HasThread();
}

void Launcher::Start() {
    emit sigStart();
    if (!HasThread()) {
        // The run is over before the event loop begins.
        QMetaObject::invokeMethod(QCoreApplication::instance(), "quit", Qt::QueuedConnection);
    }
}

void Launcher::LaunchDone() {
    m_dialog->setValue(100);
    m_dialog->hide();
    m_worker->QuitThread();
    m_worker->JoinThread();
    QCoreApplication::quit();
}

void Launcher::UpdateProgress(int total, int steps) {
    // The product may not fit into an int.
    m_dialog->setValue(static_cast<int>(qint64{steps} * 100 / total));
}

void Launcher::SetLabelText(const QString& text) {
    m_dialog->setLabelText(text);
}

void Launcher::ShowMsgBox() {
    m_dialog->show();
}
