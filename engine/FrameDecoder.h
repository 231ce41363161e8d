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
    // Decodes one packet on its own, for pictures that stand beside the streams.
    [[nodiscard]] AvFrame decode(const AVPacket &packet);

    // Time of a frame in seconds from the beginning of the source; NaN when unknown.
    [[nodiscard]] double secondsOf(const AVFrame &frame) const;

private:
    [[nodiscard]] AvFrame receive();
    [[nodiscard]] bool readPacket();
    [[nodiscard]] AvFrame nextKeyFrame();

    MediaInput *m_input{nullptr};
    AVStream *m_stream{nullptr};
    AvCodecContext m_context;
    AvPacket m_packet;
    bool m_draining{false};
    bool m_keyFramesOnly{false};
};
