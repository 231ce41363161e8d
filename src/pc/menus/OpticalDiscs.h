// The optical drives that hold a disc, as far as is known.
//
// Lives on the GUI thread and never waits: the drives are asked on a worker, and the answer of before stands
// until theirs comes.
#pragma once

#include <QObject>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>

class ThreadWorker;

class OpticalDiscs final : public QObject {
    Q_OBJECT

public:
    struct Disc {
        QString drive; // its letter
        QString label; // may be empty
        bool operator==(const Disc &other) const { return drive == other.drive && label == other.label; }
    };
    using Read = std::function<QVector<Disc>()>;

    // Asks the drives of the machine.
    explicit OpticalDiscs(QObject *parent = nullptr);
    explicit OpticalDiscs(Read read, QObject *parent = nullptr);
    ~OpticalDiscs() override;

    [[nodiscard]] QVector<Disc> discs() const { return m_discs; }
    // Asks anew, unless a question is still out.
    void refresh();

signals:
    void changed();

private:
    Read m_read;
    QVector<Disc> m_discs;
    std::unique_ptr<ThreadWorker> m_worker;
    bool m_isAsking{false};
};
