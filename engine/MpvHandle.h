// One instance of libmpv: the one place of the engine that calls it, but for the texts of MpvTextStream.
//
// Owned by a play (or for a moment by who asks for the sound devices). wait() belongs to one thread; all else
// may be called from any thread. No operation waits for libmpv but setNow(), readNow() and
// terminate().
#pragma once

#include "MpvValue.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

struct mpv_handle;

struct MpvEvent {
    enum class Kind { None, Shutdown, FileLoaded, EndFile, PlaybackRestart, Property, Reply, Log, Other };
    Kind kind = Kind::None;
    std::uint64_t id = 0; // of the observation or the request that is answered
    int error = 0;        // below 0: the request, or the file of EndFile, failed
    MpvValue value;       // of Property and Reply
    std::string prefix;   // module of a Log line
    std::string text;     // of a Log line
    bool isError = false; // a Log line of level error or above
};

class MpvHandle final {
public:
    enum class Format { Flag, Integer, Number, Text, Node };

    // Makes and sets up an instance. Null, with the reason in the log, where libmpv refuses.
    static std::unique_ptr<MpvHandle> create(const MpvMap &options);
    ~MpvHandle();
    MpvHandle(const MpvHandle &) = delete;
    MpvHandle &operator=(const MpvHandle &) = delete;

    // Next event; Kind::None when the time is over or wakeUp() was called.
    MpvEvent wait(double seconds);
    void wakeUp();

    // Answered by an event of Kind::Reply with the id when the id is not 0.
    void set(const std::string &name, const MpvValue &value, std::uint64_t id = 0);
    void get(const std::string &name, Format format, std::uint64_t id);
    void command(const std::vector<std::string> &arguments, std::uint64_t id = 0);
    void commandNamed(const MpvMap &arguments, std::uint64_t id = 0);
    void observe(const std::string &name, Format format, std::uint64_t id);

    // For subtitle files in a code page that libmpv cannot read: the chosen one, 0 guesses it. Files that are
    // open already keep theirs until they are read again.
    void setTextCodePage(int codePage) { *m_textCodePage = codePage; }

    // Waits for libmpv. False, with the reason in the log, where it refuses.
    bool setNow(const std::string &name, const MpvValue &value);
    // Waits for libmpv.
    [[nodiscard]] MpvValue readNow(const std::string &name) const;

    // Ends the instance. False when it did not end in time: it is left to a thread of its own.
    bool terminate(std::chrono::milliseconds limit);

    // What a request that failed with this error means, for the log.
    [[nodiscard]] static const char *errorText(int error);
    [[nodiscard]] static bool isNothingToPlay(int error);
    [[nodiscard]] static bool isUnknownFormat(int error);

private:
    explicit MpvHandle(mpv_handle *handle)
        : m_handle(handle)
    {
    }
    mpv_handle *m_handle;
    // Of the instance, which may outlive this object.
    std::shared_ptr<std::atomic<int>> m_textCodePage{std::make_shared<std::atomic<int>>(0)};
};
