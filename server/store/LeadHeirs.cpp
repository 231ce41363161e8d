#include "LeadHeirs.h"

#include "Connection.h"
#include "VideoWriter.h"

#include <algorithm>

LeadHeirs::LeadHeirs(Connection &connection, VideoWriter &writer)
    : m_connection(connection)
    , m_writer(writer)
{
}

bool LeadHeirs::note(const QVector<FileRow> &lost)
{
    for (const FileRow &row : lost) {
        Statement read = m_connection.prepare(
            QStringLiteral("SELECT id FROM items WHERE lead_id = ? AND missing_since = 0 ORDER BY path"));
        if (!read.run(row.id))
            return false;
        Inheritance inheritance{row.id, {}};
        while (read.next())
            inheritance.heirs << read.integer(0);
        if (!inheritance.heirs.isEmpty())
            m_inheritances << inheritance;
    }
    return true;
}

QString LeadHeirs::matchedBefore(const VideoRow &part) const
{
    if (part.leadId == 0)
        return {};
    const VideoRow lead = VideoRow::table().find(m_connection, part.leadId);
    // Beside its lead, or behind one that went elsewhere, it has become another film.
    const bool left = lead.folder != part.folder && lead.path == part.scannedVideo().leadPath;
    return left ? lead.matched : QString();
}

bool LeadHeirs::settle()
{
    return std::all_of(m_inheritances.begin(), m_inheritances.end(),
                       [this](const Inheritance &inheritance) { return settle(inheritance); });
}

bool LeadHeirs::settle(const Inheritance &inheritance)
{
    const VideoRow lead = VideoRow::table().find(m_connection, inheritance.leadId);
    if (lead.id == 0 || lead.missingSince == 0)
        return true;
    int heirId = 0;
    for (const int id : inheritance.heirs) {
        VideoRow row = VideoRow::table().find(m_connection, id);
        if (row.id == 0 || row.missingSince > 0)
            continue;
        if (row.leadId == lead.id) {
            row.leadId = heirId;
            if (!m_writer.write(&row))
                return false;
        }
        if (heirId == 0)
            heirId = row.leadId > 0 ? row.leadId : row.id;
    }
    VideoRow heir = VideoRow::table().find(m_connection, heirId);
    if (heir.id == 0 || lead.matched.isEmpty() || !heir.matched.isEmpty())
        return true;
    // The lead keeps it too: its file may only have been moved.
    heir.matched = lead.matched;
    return m_writer.write(&heir);
}
