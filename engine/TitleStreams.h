// The bytes of one title of a disc, for the demuxer.
//
// Used by one thread at a time; owns the disc.
#pragma once

#include "BluRayDisc.h"
#include "ByteStream.h"
#include "DvdDisc.h"

#include <memory>
#include <string>

class DvdTitleStream final : public TitleStream {
public:
    DvdTitleStream(std::unique_ptr<DvdDisc> disc, DvdTitle title);

    std::int64_t read(void *buffer, std::size_t bytes) override;
    double seekSeconds(double seconds) override;
    [[nodiscard]] double duration() const override { return m_title.durationMs / 1000.0; }
    [[nodiscard]] const char *format() const override { return "mpeg"; }

private:
    std::unique_ptr<DvdDisc> m_disc;
    DvdTitle m_title;
    std::size_t m_cell{0};
    std::uint32_t m_sector{0}; // next to read
};

class BluRayTitleStream final : public TitleStream {
public:
    // The title has been selected.
    BluRayTitleStream(std::unique_ptr<BluRayDisc> disc, int durationMs);

    std::int64_t read(void *buffer, std::size_t bytes) override { return m_disc->read(buffer, bytes); }
    double seekSeconds(double seconds) override { return m_disc->seekSeconds(seconds); }
    [[nodiscard]] double duration() const override { return m_durationMs / 1000.0; }
    [[nodiscard]] const char *format() const override { return "mpegts"; }

private:
    std::unique_ptr<BluRayDisc> m_disc;
    int m_durationMs;
};

// Stream of a title (0 or less: the main title); null when the path holds no disc or not this title.
[[nodiscard]] std::unique_ptr<TitleStream> openTitleStream(const std::string &path, int title);
