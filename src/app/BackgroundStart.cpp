#include "BackgroundStart.h"

#include <QDebug>

#include <exception>
#include <memory>
#include <system_error>
#include <thread>

void BackgroundStart::runSteps(const BackgroundTasks &tasks)
{
    tasks.applyProxy(tasks.readProxy());
    tasks.reportUsage();
    if (tasks.wantsUpdateCheck())
        tasks.checkUpdate();
}

void BackgroundStart::start(BackgroundTasks tasks)
{
    if (m_running.exchange(true))
        return;
    auto shared = std::make_shared<const BackgroundTasks>(std::move(tasks));
    try {
        std::thread([this, shared] {
            try {
                runSteps(*shared);
            } catch (const std::exception &error) {
                qInfo() << "[Process] start-up thread ended early:" << error.what();
            }
            m_running = false;
        }).detach();
    } catch (const std::system_error &error) {
        m_running = false;
        qInfo() << "[Process] start-up thread could not be started:" << error.what();
    }
}
