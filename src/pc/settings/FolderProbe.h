// Tells whether folders that the user chose can be used, without waiting for a disc or a network folder that
// does not answer.
//
// Lives on the GUI thread; the file system is asked on workers. Every question gets one answer; one that
// takes too long is answered with Silent.
#pragma once

#include "SettingRow.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

class QTimer;
class ThreadWorker;

class FolderProbe final : public QObject {
    Q_OBJECT

public:
    enum Answer { Usable, Missing, NoFolder, NotReadable, NotWritable, Silent };
    Q_ENUM(Answer)
    using Ask = std::function<Answer(const QString &folder, FolderNeed need)>;
    static constexpr int PatienceMs = 3000;

    explicit FolderProbe(QObject *parent = nullptr);
    explicit FolderProbe(Ask ask, int patienceMs, QObject *parent = nullptr);
    ~FolderProbe() override;

    // The number of the question.
    int ask(const QString &folder, FolderNeed need);
    [[nodiscard]] bool isBusy() const { return !m_open.isEmpty(); }

    // The reason as the user reads it; empty for a usable folder.
    [[nodiscard]] static QString reason(Answer answer);
    [[nodiscard]] static Answer askDisk(const QString &folder, FolderNeed need);

signals:
    void answered(int question, FolderProbe::Answer answer);

private:
    void finish(int question, Answer answer);

    Ask m_ask;
    int m_patienceMs;
    int m_last{0};
    QHash<int, QTimer *> m_open;
    std::unique_ptr<ThreadWorker> m_worker;
};
