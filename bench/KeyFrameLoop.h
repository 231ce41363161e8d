// The least code that gives pictures of a file at points in time: libavformat seeks, libavcodec decodes the
// key frame that it lands on, libswscale makes it small. One thread, everything reused.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct SwsContext;

class KeyFrameLoop final {
public:
    KeyFrameLoop(int width, int height)
        : m_width(width)
        , m_height(height)
    {
    }
    ~KeyFrameLoop();
    KeyFrameLoop(const KeyFrameLoop &) = delete;
    KeyFrameLoop &operator=(const KeyFrameLoop &) = delete;

    [[nodiscard]] bool open(const std::string &path);
    // RGBA of the key frame at or before the position; false when there is none.
    [[nodiscard]] bool grab(int positionMs, std::vector<std::uint8_t> &pixels);

private:
    int m_width;
    int m_height;
    AVFormatContext *m_input{nullptr};
    AVCodecContext *m_decoder{nullptr};
    AVFrame *m_frame{nullptr};
    AVPacket *m_packet{nullptr};
    SwsContext *m_scaler{nullptr};
    int m_stream{-1};
};
