#include "MpvHandle.h"

#include "EngineLog.h"
#include "MpvTextStream.h"

#include <mpv/client.h>

#include <clocale>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <thread>

namespace {

// libmpv reads and writes numbers with the C library, in the locale of the process.
void keepNumbersPlain()
{
    static std::once_flag once;
    std::call_once(once, [] {
        const char *current = std::setlocale(LC_NUMERIC, nullptr);
        if (current && std::strcmp(current, "C") == 0)
            return;
        engineLog("[Engine] numeric locale %s replaced by C", current ? current : "?");
    });
    const char *current = std::setlocale(LC_NUMERIC, nullptr);
    if (!current || std::strcmp(current, "C") != 0)
        std::setlocale(LC_NUMERIC, "C");
}

MpvValue fromNode(const mpv_node &node)
{
    switch (node.format) {
    case MPV_FORMAT_STRING:
        return MpvValue(node.u.string);
    case MPV_FORMAT_FLAG:
        return MpvValue(node.u.flag != 0);
    case MPV_FORMAT_INT64:
        return MpvValue(static_cast<std::int64_t>(node.u.int64));
    case MPV_FORMAT_DOUBLE:
        return MpvValue(node.u.double_);
    case MPV_FORMAT_NODE_ARRAY: {
        MpvList list;
        for (int i = 0; i < node.u.list->num; ++i)
            list.push_back(fromNode(node.u.list->values[i]));
        return MpvValue(std::move(list));
    }
    case MPV_FORMAT_NODE_MAP: {
        MpvMap map;
        for (int i = 0; i < node.u.list->num; ++i)
            map.emplace(node.u.list->keys[i], fromNode(node.u.list->values[i]));
        return MpvValue(std::move(map));
    }
    case MPV_FORMAT_BYTE_ARRAY: {
        const auto *bytes = static_cast<const unsigned char *>(node.u.ba->data);
        return MpvValue(MpvBytes(bytes, bytes + node.u.ba->size));
    }
    default:
        return {};
    }
}

MpvValue fromData(mpv_format format, const void *data)
{
    if (!data)
        return {};
    switch (format) {
    case MPV_FORMAT_STRING:
        return MpvValue(*static_cast<char *const *>(data));
    case MPV_FORMAT_FLAG:
        return MpvValue(*static_cast<const int *>(data) != 0);
    case MPV_FORMAT_INT64:
        return MpvValue(*static_cast<const std::int64_t *>(data));
    case MPV_FORMAT_DOUBLE:
        return MpvValue(*static_cast<const double *>(data));
    case MPV_FORMAT_NODE:
        return fromNode(*static_cast<const mpv_node *>(data));
    default:
        return {};
    }
}

// A node with the storage that it points to.
class NodeTree final {
public:
    explicit NodeTree(const MpvValue &value) { fill(m_root, value); }
    mpv_node *root() { return &m_root; }

private:
    struct Branch {
        mpv_node_list list{};
        std::vector<mpv_node> values;
        std::vector<std::string> keys;
        std::vector<char *> keyPointers;
    };

    void fill(mpv_node &node, const MpvValue &value)
    {
        node.format = MPV_FORMAT_NONE;
        if (const auto *flag = std::get_if<bool>(&value.data())) {
            node.format = MPV_FORMAT_FLAG;
            node.u.flag = *flag ? 1 : 0;
        } else if (const auto *integer = std::get_if<std::int64_t>(&value.data())) {
            node.format = MPV_FORMAT_INT64;
            node.u.int64 = *integer;
        } else if (const auto *number = std::get_if<double>(&value.data())) {
            node.format = MPV_FORMAT_DOUBLE;
            node.u.double_ = *number;
        } else if (const auto *text = std::get_if<std::string>(&value.data())) {
            m_texts.push_back(*text);
            node.format = MPV_FORMAT_STRING;
            node.u.string = m_texts.back().data();
        } else if (const auto *list = std::get_if<MpvList>(&value.data())) {
            Branch &branch = m_branches.emplace_back();
            branch.values.resize(list->size());
            for (std::size_t i = 0; i < list->size(); ++i)
                fill(branch.values[i], (*list)[i]);
            finish(node, branch, MPV_FORMAT_NODE_ARRAY);
        } else if (const auto *map = std::get_if<MpvMap>(&value.data())) {
            Branch &branch = m_branches.emplace_back();
            branch.values.resize(map->size());
            std::size_t i = 0;
            for (const auto &[key, entry] : *map) {
                branch.keys.push_back(key);
                fill(branch.values[i++], entry);
            }
            for (std::string &key : branch.keys)
                branch.keyPointers.push_back(key.data());
            finish(node, branch, MPV_FORMAT_NODE_MAP);
        }
    }

    static void finish(mpv_node &node, Branch &branch, mpv_format format)
    {
        branch.list.num = static_cast<int>(branch.values.size());
        branch.list.values = branch.values.data();
        branch.list.keys = branch.keyPointers.empty() ? nullptr : branch.keyPointers.data();
        node.format = format;
        node.u.list = &branch.list;
    }

    mpv_node m_root{};
    std::deque<std::string> m_texts; // addresses must stay
    std::deque<Branch> m_branches;
};

mpv_format nativeFormat(MpvHandle::Format format)
{
    switch (format) {
    case MpvHandle::Format::Flag:
        return MPV_FORMAT_FLAG;
    case MpvHandle::Format::Integer:
        return MPV_FORMAT_INT64;
    case MpvHandle::Format::Number:
        return MPV_FORMAT_DOUBLE;
    case MpvHandle::Format::Text:
        return MPV_FORMAT_STRING;
    case MpvHandle::Format::Node:
        break;
    }
    return MPV_FORMAT_NODE;
}

// What holds for every instance: a library in somebody's process takes no configuration, no keys and no
// scripts, opens no file that was not asked for and draws nothing of its own.
const MpvMap &fixedOptions()
{
    static const MpvMap options = {
        {"config", "no"},
        {"load-scripts", "no"},
        {"osc", "no"},
        {"ytdl", "no"},
        {"load-stats-overlay", "no"},
        {"load-osd-console", "no"},
        {"load-auto-profiles", "no"},
        {"terminal", "no"},
        {"input-default-bindings", "no"},
        {"input-builtin-bindings", "no"},
        {"input-vo-keyboard", "no"},
        {"input-cursor", "no"},
        {"input-media-keys", "no"},
        {"cursor-autohide", "no"},
        {"stop-screensaver", "no"},
        {"osd-level", "0"},
        {"osd-bar", "no"},
        {"idle", "yes"},
        {"keep-open", "yes"},
        {"keep-open-pause", "no"},
        {"resume-playback", "no"},
        {"save-position-on-quit", "no"},
        {"load-unsafe-playlists", "no"},
        {"ordered-chapters", "no"},
        {"access-references", "no"},
        {"autoload-files", "no"},
        {"sub-auto", "no"},
        {"audio-file-auto", "no"},
        {"cover-art-auto", "no"},
        {"audio-display", "no"},
        {"audio-fallback-to-null", "yes"},
        {"network-timeout", "9"},
        {"volume-max", "260"},
    };
    return options;
}

} // namespace

std::unique_ptr<MpvHandle> MpvHandle::create(const MpvMap &options)
{
    keepNumbersPlain();
    mpv_handle *native = mpv_create();
    if (!native) {
        engineLog("[Engine] libmpv cannot be created");
        return nullptr;
    }
    std::unique_ptr<MpvHandle> handle(new MpvHandle(native));
    for (const MpvMap *set : {&fixedOptions(), &options}) {
        for (const auto &[name, value] : *set) {
            NodeTree tree(value);
            const int error = mpv_set_option(native, name.c_str(), MPV_FORMAT_NODE, tree.root());
            if (error < 0)
                engineLog("[Engine] option %s: %s", name.c_str(), mpv_error_string(error));
        }
    }
    mpv_request_log_messages(native, "warn");
    MpvTextStream::addTo(native, *handle->m_textCodePage);
    const int error = mpv_initialize(native);
    if (error < 0) {
        engineLog("[Engine] libmpv cannot be set up: %s", mpv_error_string(error));
        return nullptr;
    }
    return handle;
}

MpvHandle::~MpvHandle()
{
    if (m_handle)
        mpv_terminate_destroy(m_handle);
}

MpvEvent MpvHandle::wait(double seconds)
{
    MpvEvent event;
    const mpv_event *native = mpv_wait_event(m_handle, seconds);
    event.id = native->reply_userdata;
    event.error = native->error;
    switch (native->event_id) {
    case MPV_EVENT_NONE:
        break;
    case MPV_EVENT_SHUTDOWN:
        event.kind = MpvEvent::Kind::Shutdown;
        break;
    case MPV_EVENT_FILE_LOADED:
        event.kind = MpvEvent::Kind::FileLoaded;
        break;
    case MPV_EVENT_END_FILE: {
        const auto *end = static_cast<const mpv_event_end_file *>(native->data);
        event.kind = MpvEvent::Kind::EndFile;
        event.error = end->reason == MPV_END_FILE_REASON_ERROR ? end->error : 0;
        break;
    }
    case MPV_EVENT_PLAYBACK_RESTART:
        event.kind = MpvEvent::Kind::PlaybackRestart;
        break;
    case MPV_EVENT_PROPERTY_CHANGE:
    case MPV_EVENT_GET_PROPERTY_REPLY: {
        const auto *property = static_cast<const mpv_event_property *>(native->data);
        event.kind =
            native->event_id == MPV_EVENT_PROPERTY_CHANGE ? MpvEvent::Kind::Property : MpvEvent::Kind::Reply;
        if (event.error >= 0)
            event.value = fromData(property->format, property->data);
        break;
    }
    case MPV_EVENT_SET_PROPERTY_REPLY:
        event.kind = MpvEvent::Kind::Reply;
        break;
    case MPV_EVENT_COMMAND_REPLY:
        event.kind = MpvEvent::Kind::Reply;
        if (event.error >= 0)
            event.value = fromNode(static_cast<const mpv_event_command *>(native->data)->result);
        break;
    case MPV_EVENT_LOG_MESSAGE: {
        const auto *line = static_cast<const mpv_event_log_message *>(native->data);
        event.kind = MpvEvent::Kind::Log;
        event.prefix = line->prefix;
        event.text = line->text;
        event.isError = line->log_level <= MPV_LOG_LEVEL_ERROR;
        break;
    }
    default:
        event.kind = MpvEvent::Kind::Other;
        break;
    }
    return event;
}

void MpvHandle::wakeUp()
{
    mpv_wakeup(m_handle);
}

void MpvHandle::set(const std::string &name, const MpvValue &value, std::uint64_t id)
{
    NodeTree tree(value);
    const int error = mpv_set_property_async(m_handle, id, name.c_str(), MPV_FORMAT_NODE, tree.root());
    if (error < 0)
        engineLog("[Engine] property %s: %s", name.c_str(), mpv_error_string(error));
}

bool MpvHandle::setNow(const std::string &name, const MpvValue &value)
{
    NodeTree tree(value);
    const int error = mpv_set_property(m_handle, name.c_str(), MPV_FORMAT_NODE, tree.root());
    if (error < 0)
        engineLog("[Engine] property %s: %s", name.c_str(), mpv_error_string(error));
    return error >= 0;
}

void MpvHandle::get(const std::string &name, Format format, std::uint64_t id)
{
    mpv_get_property_async(m_handle, id, name.c_str(), nativeFormat(format));
}

void MpvHandle::command(const std::vector<std::string> &arguments, std::uint64_t id)
{
    std::vector<const char *> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string &argument : arguments)
        pointers.push_back(argument.c_str());
    pointers.push_back(nullptr);
    mpv_command_async(m_handle, id, pointers.data());
}

void MpvHandle::commandNamed(const MpvMap &arguments, std::uint64_t id)
{
    NodeTree tree{MpvValue(arguments)};
    mpv_command_node_async(m_handle, id, tree.root());
}

void MpvHandle::observe(const std::string &name, Format format, std::uint64_t id)
{
    mpv_observe_property(m_handle, id, name.c_str(), nativeFormat(format));
}

MpvValue MpvHandle::readNow(const std::string &name) const
{
    mpv_node node{};
    if (mpv_get_property(m_handle, name.c_str(), MPV_FORMAT_NODE, &node) < 0)
        return {};
    MpvValue value = fromNode(node);
    mpv_free_node_contents(&node);
    return value;
}

bool MpvHandle::terminate(std::chrono::milliseconds limit)
{
    struct Ending {
        std::mutex mutex;
        std::condition_variable changed;
        bool done = false;
    };
    if (!m_handle)
        return true;
    auto ending = std::make_shared<Ending>();
    std::thread([ending, native = m_handle, codePage = m_textCodePage] {
        mpv_terminate_destroy(native);
        const std::lock_guard<std::mutex> lock(ending->mutex);
        ending->done = true;
        ending->changed.notify_all();
    }).detach();
    m_handle = nullptr;
    std::unique_lock<std::mutex> lock(ending->mutex);
    const bool ended = ending->changed.wait_for(lock, limit, [&] { return ending->done; });
    if (!ended)
        engineLog("[Engine] a playback instance does not end and is left behind");
    return ended;
}

const char *MpvHandle::errorText(int error)
{
    return mpv_error_string(error);
}

bool MpvHandle::isNothingToPlay(int error)
{
    return error == MPV_ERROR_NOTHING_TO_PLAY || error == MPV_ERROR_AO_INIT_FAILED
           || error == MPV_ERROR_VO_INIT_FAILED;
}

bool MpvHandle::isUnknownFormat(int error)
{
    return error == MPV_ERROR_UNKNOWN_FORMAT;
}
