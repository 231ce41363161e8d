// Decoder of one stream of an input, picture by picture or block of sound by block.
//
// Used by one thread at a time. Memory is bounded: one decoding thread, and pictures above a size are
// refused.
#pragma once

#include "AvPointers.h"
#include "MediaInput.h"

class FrameDecoder final {
public:
    // False when the stream cannot be decoded.
    bool open(MediaInput &input, int stream);

    // Decodes key frames alone; holds until it is changed. draft: without the filter that smoothes the edges
    // of blocks, for pictures that are made much smaller anyway.
    void setKeyFramesOnly(bool on, bool draft = false);
    // After a seek of the input.
    void flush();

    // Next frame, null at the end and past the deadline of the input.
    [[nodiscard]] AvFrame next();

    // Nearest: the last one, or the one that follows the time at once.
    enum class KeyFrame { First, Last, Nearest };
    // The first key frame from here on, or the last one, that is shown until a time. Reads no further than
    // that time, and decodes this frame alone. Null without one; where it is there and broken, the time is
    // then just before it.
    [[nodiscard]] AvFrame keyFrameUntil(double &seconds, KeyFrame which);
    // The first packet that keyFrameUntil() met after flush() was a key frame: the seek had an index to go
    // by.
    [[nodiscard]] bool beganAtKeyFrame() const { return m_beganAtKeyFrame; }

    // Decodes one packet on its own, for pictures that stand beside the streams.
    [[nodiscard]] AvFrame decode(const AVPacket &packet);

    // Time of a frame in seconds from the beginning of the source; NaN when unknown.
    [[nodiscard]] double secondsOf(const AVFrame &frame) const;
    [[nodiscard]] double secondsOf(const AVPacket &packet) const;

private:
    [[nodiscard]] AvFrame receive();
    [[nodiscard]] bool readPacket();
    [[nodiscard]] AvFrame nextKeyFrame();
    [[nodiscard]] double secondsOf(std::int64_t stamp) const;

    MediaInput *m_input{nullptr};
    AVStream *m_stream{nullptr};
    AvCodecContext m_context;
    AvPacket m_packet;
    bool m_draining{false};
    bool m_keyFramesOnly{false};
    bool m_beganAtKeyFrame{false};
};
