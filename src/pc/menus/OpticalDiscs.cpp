#include "OpticalDiscs.h"

#include "core/ThreadWorker.h"
#include "disc/DiscDrives.h"

namespace {

constexpr int kStopMs = 200;
constexpr int kMostDrives = 24;
constexpr int kLabelBytes = 256;

// A drive without a disc has neither a size nor a label.
QVector<OpticalDiscs::Disc> discsOfMachine()
{
    QVector<OpticalDiscs::Disc> discs;
    for (int n = 0; n < kMostDrives && !ThreadWorker::stopRequested(); ++n) {
        const char letter = OpticalDriveByIndex(n);
        if (letter == 0)
            break;
        quint64 total = 0;
        char label[kLabelBytes] = "";
        const bool hasLabel = DriveVolumeLabel(letter, label, kLabelBytes) == 1;
        const bool hasSize = DriveFreeSpace(letter, nullptr, &total) == 1 && total > 0;
        if (hasLabel || hasSize)
            discs.append({QString(QLatin1Char(letter)), QString::fromUtf8(label)});
    }
    return discs;
}

} // namespace

OpticalDiscs::OpticalDiscs(QObject *parent)
    : OpticalDiscs(discsOfMachine, parent)
{
}

OpticalDiscs::OpticalDiscs(Read read, QObject *parent)
    : QObject(parent)
    , m_read(std::move(read))
{
}

OpticalDiscs::~OpticalDiscs()
{
    if (m_worker)
        m_worker->stop(kStopMs);
}

void OpticalDiscs::refresh()
{
    if (m_isAsking)
        return;
    m_isAsking = true;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(1);
    const auto found = std::make_shared<QVector<Disc>>();
    m_worker->addTask([found, read = m_read] { *found = read(); },
                      [this, found] {
                          m_isAsking = false;
                          if (m_discs == *found)
                              return;
                          m_discs = *found;
                          emit changed();
                      });
}
