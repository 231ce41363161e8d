// What is to be fetched next: the position under the pointer before the rows of the strip, and of the
// positions under the pointer the newest alone.
//
// Not safe for several threads; its owner locks.
#pragma once

#include <QVector>

#include <deque>
#include <optional>

struct PreviewJob {
    int positionMs{0};
    bool isRow{false};
    quint64 fill{0}; // of a row: the filling that it belongs to
};

class PreviewJobs final {
public:
    void hover(int positionMs) { m_hover = positionMs; }
    void dropHover() { m_hover.reset(); }

    // The rows of a new filling, in their order; those of the one before are dropped. Gives its number.
    quint64 fill(const QVector<int> &positionsMs);
    void dropRows();
    // The rows that wait belong to this filling; 0 without one.
    [[nodiscard]] quint64 filling() const { return m_filling; }
    // All rows of the filling have been taken.
    [[nodiscard]] bool isFillTaken() const { return m_rows.empty(); }

    [[nodiscard]] std::optional<PreviewJob> take();
    // A job that was taken and could not be done: it comes next, unless a newer one has made it stale.
    void putBack(const PreviewJob &job);
    void clear();

private:
    std::optional<int> m_hover;
    std::deque<int> m_rows;
    quint64 m_filling{0};
    quint64 m_lastFilling{0};
};
