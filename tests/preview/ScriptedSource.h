// A source of pictures that does what a test wants: waits, fails, counts. Safe on every thread.
#pragma once

#include "preview/IPreviewSource.h"

#include <QVector>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

class ScriptedSource final : public IPreviewSource {
public:
    using Answer = std::function<PreviewPicture(int positionMs)>;

    static constexpr std::chrono::seconds Patience{10};

    // A plain picture, of the colour that the position stands for.
    static QImage picture(int positionMs, const QSize &size = {324, 182})
    {
        QImage image(size, QImage::Format_RGBA8888);
        image.fill(QColor::fromHsv(positionMs / 1000 % 360, 160, 200));
        return image;
    }

    bool open(const QString &path) override
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ++m_opens;
        m_path = path;
        m_isOpen = false;
        wait(lock, m_holdOpen, m_insideOpen);
        m_isOpen = m_opensWell;
        return m_opensWell;
    }

    PreviewPicture grab(int positionMs) override
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_grabs.append(positionMs);
        if (!m_isOpen)
            return {};
        wait(lock, m_holdGrab, m_insideGrab);
        if (!m_isOpen)
            return {};
        return m_answer ? m_answer(positionMs) : PreviewPicture{picture(positionMs), positionMs};
    }

    // A grab that is held comes back with nothing.
    void close() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_closes;
        m_isOpen = false;
        if (m_isStubborn)
            return;
        ++m_releases;
        m_changed.notify_all();
    }

    // ---- the test's side
    // close() does not bring a held grab back.
    void setStubborn(bool stubborn)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isStubborn = stubborn;
    }
    void setOpensWell(bool well)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_opensWell = well;
    }
    void setAnswer(Answer answer)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_answer = std::move(answer);
    }
    // Calls from now on wait for letGo(), or for close().
    void holdGrabs(bool on) { set(m_holdGrab, on); }
    void holdOpens(bool on) { set(m_holdOpen, on); }
    void letGo()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_releases;
        m_changed.notify_all();
    }
    bool waitInsideGrab() { return waitFor(m_insideGrab); }
    bool waitInsideOpen() { return waitFor(m_insideOpen); }
    QVector<int> grabs() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_grabs;
    }
    int opens() const { return read(m_opens); }
    int closes() const { return read(m_closes); }
    bool isOpen() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_isOpen;
    }
    QString path() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_path;
    }

private:
    void set(bool &flag, bool on)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        flag = on;
        ++m_releases;
        m_changed.notify_all();
    }
    int read(const int &number) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return number;
    }
    void wait(std::unique_lock<std::mutex> &lock, bool hold, int &inside)
    {
        if (!hold)
            return;
        ++inside;
        m_changed.notify_all();
        const int before = m_releases;
        m_changed.wait_for(lock, Patience, [&] { return m_releases != before; });
        --inside;
    }
    bool waitFor(const int &inside)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, Patience, [&] { return inside > 0; });
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    Answer m_answer;
    QVector<int> m_grabs;
    QString m_path;
    bool m_opensWell{true};
    bool m_isOpen{false};
    bool m_isStubborn{false};
    bool m_holdGrab{false};
    bool m_holdOpen{false};
    int m_insideGrab{0};
    int m_insideOpen{0};
    int m_releases{0};
    int m_opens{0};
    int m_closes{0};
};
