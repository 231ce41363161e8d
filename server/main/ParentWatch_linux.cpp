#include "ParentWatch.h"

#include <QSocketNotifier>
#include <QTimer>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int pollMs = 2000;

} // namespace

class ParentWatch::Platform final {
public:
    explicit Platform(ParentWatch &owner)
        : m_parent(::getppid())
    {
        // Who is a child of the system's first process has been left alone on purpose, or has been before
        // this.
        if (m_parent <= 1)
            return;
        m_descriptor = int(::syscall(SYS_pidfd_open, m_parent, 0));
        if (m_descriptor >= 0) {
            m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
            QObject::connect(m_notifier.get(), &QSocketNotifier::activated, &owner, [this, &owner] {
                m_notifier->setEnabled(false);
                emit owner.parentEnded();
            });
            return;
        }
        // A kernel without descriptors of processes: an orphan gets another parent.
        m_timer = std::make_unique<QTimer>();
        QObject::connect(m_timer.get(), &QTimer::timeout, &owner, [this, &owner] {
            if (::getppid() == m_parent)
                return;
            m_timer->stop();
            emit owner.parentEnded();
        });
        m_timer->start(pollMs);
    }

    ~Platform()
    {
        m_notifier.reset();
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

private:
    pid_t m_parent{0};
    int m_descriptor{-1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<QTimer> m_timer;
};

ParentWatch::ParentWatch(QObject *parent)
    : QObject(parent)
    , m_platform(std::make_unique<Platform>(*this))
{
}

ParentWatch::~ParentWatch() = default;
