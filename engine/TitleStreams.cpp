#include "TitleStreams.h"

#include "SourceProbe.h"

#include <algorithm>

namespace {

// The named title, else the longest.
template<typename Title>
const Title *pick(const std::vector<Title> &titles, int number)
{
    if (titles.empty())
        return nullptr;
    const auto found =
        number > 0
            ? std::find_if(titles.begin(), titles.end(),
                           [number](const Title &title) { return title.number == number; })
            : std::max_element(titles.begin(), titles.end(), [](const Title &left, const Title &right) {
                  return left.durationMs < right.durationMs;
              });
    return found == titles.end() ? nullptr : &*found;
}

} // namespace

DvdTitleStream::DvdTitleStream(std::unique_ptr<DvdDisc> disc, DvdTitle title)
    : m_disc(std::move(disc))
    , m_title(std::move(title))
{
    seekSeconds(0.0);
}

double DvdTitleStream::seekSeconds(double seconds)
{
    // Cells tell their lengths; inside of one the bytes run about as evenly as the time.
    double before = 0.0;
    for (m_cell = 0; m_cell < m_title.cells.size(); ++m_cell) {
        const DvdCell &cell = m_title.cells[m_cell];
        const double length = cell.durationMs / 1000.0;
        if (seconds < before + length || m_cell + 1 == m_title.cells.size()) {
            const double part = length > 0 ? std::clamp((seconds - before) / length, 0.0, 1.0) : 0.0;
            const std::uint32_t sectors = cell.lastSector - cell.firstSector;
            m_sector = cell.firstSector + static_cast<std::uint32_t>(sectors * part);
            return before + length * part;
        }
        before += length;
    }
    return -1.0;
}

std::int64_t DvdTitleStream::read(void *buffer, std::size_t bytes)
{
    const std::size_t room = bytes / DvdDisc::SectorSize;
    while (m_cell < m_title.cells.size() && room > 0) {
        const DvdCell &cell = m_title.cells[m_cell];
        if (m_sector > cell.lastSector) {
            if (++m_cell < m_title.cells.size())
                m_sector = m_title.cells[m_cell].firstSector;
            continue;
        }
        const std::size_t left = std::size_t(cell.lastSector) - m_sector + 1;
        const std::int64_t count =
            m_disc->readSectors(m_title.titleSet, m_sector, std::min(room, left), buffer);
        if (count <= 0)
            return count;
        m_sector += static_cast<std::uint32_t>(count);
        return count * static_cast<std::int64_t>(DvdDisc::SectorSize);
    }
    return 0;
}

BluRayTitleStream::BluRayTitleStream(std::unique_ptr<BluRayDisc> disc, int durationMs)
    : m_disc(std::move(disc))
    , m_durationMs(durationMs)
{
}

std::unique_ptr<TitleStream> openTitleStream(const std::string &path, int title)
{
    const libvp::VD_SourceForm form = SourceProbe::form(path);
    const std::string root = SourceProbe::discRoot(path);
    if (SourceProbe::isDvd(form)) {
        std::unique_ptr<DvdDisc> disc = DvdDisc::open(root);
        const DvdTitle *found = disc ? pick(disc->titles(), title) : nullptr;
        if (!found || found->cells.empty())
            return nullptr;
        DvdTitle copy = *found;
        return std::make_unique<DvdTitleStream>(std::move(disc), std::move(copy));
    }
    if (SourceProbe::isBluRay(form)) {
        std::unique_ptr<BluRayDisc> disc = BluRayDisc::open(root);
        const BluRayTitle *found = disc ? pick(disc->titles(), title) : nullptr;
        if (!found || !disc->selectTitle(found->number))
            return nullptr;
        const int durationMs = found->durationMs;
        return std::make_unique<BluRayTitleStream>(std::move(disc), durationMs);
    }
    return nullptr;
}
