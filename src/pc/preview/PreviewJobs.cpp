#include "PreviewJobs.h"

quint64 PreviewJobs::fill(const QVector<int> &positionsMs)
{
    m_rows.assign(positionsMs.begin(), positionsMs.end());
    m_filling = ++m_lastFilling;
    return m_filling;
}

void PreviewJobs::dropRows()
{
    m_rows.clear();
    m_filling = 0;
}

std::optional<PreviewJob> PreviewJobs::take()
{
    if (m_hover) {
        const PreviewJob job{*m_hover, false, 0};
        m_hover.reset();
        return job;
    }
    if (m_rows.empty())
        return std::nullopt;
    const PreviewJob job{m_rows.front(), true, m_filling};
    m_rows.pop_front();
    return job;
}

void PreviewJobs::putBack(const PreviewJob &job)
{
    if (job.isRow) {
        if (job.fill == m_filling)
            m_rows.push_front(job.positionMs);
    } else if (!m_hover) {
        m_hover = job.positionMs;
    }
}

void PreviewJobs::clear()
{
    dropHover();
    dropRows();
}
