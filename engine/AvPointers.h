// Owning pointers to the objects of the FFmpeg libraries.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <memory>

struct AvDeleter {
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVFormatContext *context) const { avformat_close_input(&context); }
    void operator()(SwsContext *context) const { sws_freeContext(context); }
    void operator()(SwrContext *context) const { swr_free(&context); }
    void operator()(AVIOContext *context) const
    {
        av_freep(&context->buffer);
        avio_context_free(&context);
    }
};

using AvFrame = std::unique_ptr<AVFrame, AvDeleter>;
using AvPacket = std::unique_ptr<AVPacket, AvDeleter>;
using AvCodecContext = std::unique_ptr<AVCodecContext, AvDeleter>;
using AvFormatContext = std::unique_ptr<AVFormatContext, AvDeleter>;
using AvIoContext = std::unique_ptr<AVIOContext, AvDeleter>;
using AvSwsContext = std::unique_ptr<SwsContext, AvDeleter>;
using AvSwrContext = std::unique_ptr<SwrContext, AvDeleter>;
