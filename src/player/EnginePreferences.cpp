#include "EnginePreferences.h"

#include "AudioOutputs.h"
#include "QPlayer.h"
#include "StoredPreferences.h"
#include "SubtitleCharsets.h"

#include "core/SettingsManager.h"
#include "core/StoredProxy.h"

#include <QDebug>
#include <QFileInfo>

namespace {

constexpr char kVideoSetup[] = "[PC Video Setup] ";
constexpr char kAudioSetup[] = "[PC Audio Setup] ";
constexpr char kAudioSave[] = "[PC Audio Save] ";

// Positions of subtitles as the engine counts them.
constexpr int kBottom = 1;
constexpr int kTop = 2;

constexpr int kNoProxy = 0;

struct LogLine {
    const char *name;
    QVariant value;
};

void writeLog(const char *tag, std::initializer_list<LogLine> lines)
{
    for (const LogLine &line : lines)
        qInfo().noquote().nospace() << tag << line.name << ": " << line.value.toString();
}

QString key(const char *name)
{
    return QLatin1String(name);
}

// What the audio group holds, read in the order of its keys.
struct AudioChoice {
    QString device;
    int speaker;
    int amplification;
    int delay; // seconds
    bool passThrough;
    unsigned mask;
};

AudioChoice readAudio(SettingsManager &settings)
{
    StoredPreferences stored(settings, StoredPreferences::Absent::IsWritten);
    AudioChoice choice;
    choice.device = settings.value(key(SettingsKeys::PC_DefaultAudioDeviceName)).toString();
    choice.speaker = stored.number(PreferenceRows::Speaker);
    choice.amplification = stored.number(PreferenceRows::Amplification);
    choice.delay = stored.number(PreferenceRows::AudioOffset);
    choice.passThrough = stored.number(PreferenceRows::PassThrough) != 0;
    const bool ac3 = stored.flag(PreferenceRows::Ac3);
    const bool dts = stored.flag(PreferenceRows::Dts);
    const bool trueHd = stored.flag(PreferenceRows::TrueHd);
    choice.mask = AudioOutputs::codecMask(ac3, dts, trueHd);
    return choice;
}

// What the device can carry, for those who report about this machine.
void storeSupport(SettingsManager &settings, unsigned capability)
{
    const struct {
        const char *key;
        unsigned bit;
    } rows[] = {{SettingsKeys::AudioR_CMPT_Dolby, libvp::VD_Capability_AC3},
                {SettingsKeys::AudioR_CMPT_DTS, libvp::VD_Capability_DTS},
                {SettingsKeys::AudioR_CMPT_TrueHD_DTSHD, libvp::VD_Capability_TrueHD}};
    for (const auto &row : rows)
        settings.setValue(key(row.key), (capability & row.bit) != 0 ? 1 : 0);
}

} // namespace

bool EnginePreferences::canSoundWait() const
{
    return !m_settings.contains(key(SettingsKeys::PC_DefaultAudioDeviceName))
           || m_settings.value(key(SettingsKeys::PC_AudioAutomatic)).toBool();
}

void EnginePreferences::applyAll()
{
    applyAllButSound();
    applyAudio();
}

void EnginePreferences::applyAllButSound()
{
    applyVideo();
    applyPicture();
    applySubtitle();
    applyRegion();
    applyStoredShader();
    applyProxy();
}

void EnginePreferences::applyVideo()
{
    StoredPreferences stored(m_settings, StoredPreferences::Absent::Stays);
    const bool hardware = stored.flag(PreferenceRows::Hardware);
    const bool hdr = stored.flag(PreferenceRows::Hdr);
    const int sdrMode = stored.number(PreferenceRows::SdrMode);
    const int sdrValue = stored.number(PreferenceRows::SdrValue);
    const int hdrMode = stored.number(PreferenceRows::HdrMode);
    const int colorMode = stored.number(PreferenceRows::ColorMode);
    writeLog(kVideoSetup, {{"HardWare Decode", hardware},
                           {"HDR Enable", hdr},
                           {"HDR Mode", hdrMode},
                           {"SDR Mode", sdrMode},
                           {"SDR Value", sdrValue},
                           {"Color Mode", colorMode}});
    m_player.setHardwareDecoding(hardware);
    m_player.setToneMap(hdr);
    m_player.setHDRMode(hdrMode);
    m_player.setSDRMode(sdrMode);
    m_player.setSDRValue(sdrValue);
    m_player.setLimitedRange(colorMode != PreferenceRows::FullRange);
}

void EnginePreferences::applyPicture()
{
    StoredPreferences stored(m_settings, StoredPreferences::Absent::Stays);
    m_player.setDeinterlaceMode(stored.number(PreferenceRows::Deinterlace));
    m_player.setBrightness(static_cast<float>(stored.number(PreferenceRows::Brightness)));
    m_player.setContrast(static_cast<float>(stored.number(PreferenceRows::Contrast)));
    m_player.setSaturation(static_cast<float>(stored.number(PreferenceRows::Saturation)));
}

void EnginePreferences::applyAudio(Occasion occasion)
{
    const auto held = m_player.holdSoundChoices();
    const AudioChoice choice = readAudio(m_settings);
    if (occasion == Occasion::Save)
        writeLog(kAudioSave, {{"SpeakerIndex", choice.speaker},
                              {"VolumeAmplification", choice.amplification},
                              {"AudioOffsize", choice.delay}});
    const AudioOutputs::Devices devices = m_player.audioDevices();
    const std::optional<PlayerAudioDevice> device = AudioOutputs::choose(devices, choice.device);
    if (!device) {
        qInfo() << "[PC Audio Setup] there is no sound device";
        return;
    }
    if (!m_settings.contains(key(SettingsKeys::PC_DefaultAudioDeviceName)))
        m_settings.setValue(key(SettingsKeys::PC_DefaultAudioDeviceName), device->name);
    else if (device->name != choice.device)
        qInfo().noquote().nospace() << "[PC Audio Setup] the chosen device is not there: " << choice.device
                                    << "; taken: " << device->name;

    const bool passThrough = choice.passThrough && AudioOutputs::allowsPassThrough(device->connection);
    m_settings.setValue(key(SettingsKeys::PC_AudioAutomatic),
                        device->name == devices.first().name && !passThrough
                            && choice.speaker == PreferenceRows::Speaker.fallback
                            && choice.amplification == PreferenceRows::Amplification.fallback
                            && choice.delay == PreferenceRows::AudioOffset.fallback);
    const int codec = AudioOutputs::codecValue(device->connection, device->capability, choice.mask);
    m_settings.setValue(key(SettingsKeys::PC_Codec), codec);
    storeSupport(m_settings, device->capability);
    const int outputMode = passThrough ? codec : choice.speaker;
    writeLog(kAudioSetup, {{"isPassThroughEnable", passThrough},
                           {"OutputMode", outputMode},
                           {"CodecMask", choice.mask},
                           {"SpeakerIndex", choice.speaker},
                           {"VolumeAmplification", choice.amplification},
                           {"AudioOffsize", choice.delay}});

    if (!m_player.setAudioOutput(passThrough, device->name))
        qInfo().noquote() << "[PC Audio Setup] the output stays as it is, the engine refuses" << device->name;
    m_player.setOutputMode(outputMode);
    m_player.setAudioChannels(choice.speaker);
    m_player.setAudioAmplification(static_cast<float>(choice.amplification));
    m_player.setAudioDelay(static_cast<float>(choice.delay));
    if ((m_player.passThrough() != 0) != passThrough)
        qInfo() << "[PC Audio Setup] the engine's pass-through is not as asked for:" << !passThrough;
}

void EnginePreferences::applySubtitle()
{
    StoredPreferences stored(m_settings, StoredPreferences::Absent::IsWritten);
    const QString charset = SubtitleCharsets::code(stored.text(PreferenceRows::Charset));
    const int size = stored.number(PreferenceRows::FontSize);
    const bool top = stored.text(PreferenceRows::FontPosition) == QLatin1String(PreferenceRows::TopPosition);
    const bool overrideStyle = stored.flag(PreferenceRows::OverrideAss);
    const bool bold = stored.flag(PreferenceRows::Bold);
    const bool italic = stored.flag(PreferenceRows::Italic);
    const bool outline = stored.flag(PreferenceRows::OutLine);
    const QString color = stored.color(PreferenceRows::FontColor);
    const QString outlineColor = stored.color(PreferenceRows::OutLineColor);
    const int offset = stored.number(PreferenceRows::SubtitleOffset);

    m_player.setSubtitlePosition(top ? kTop : kBottom);
    m_player.setSubtitleOffset(static_cast<float>(offset) * PreferenceRows::SecondsPerOffsetStep);
    // Without a chosen font the engine takes its own.
    m_player.setSubtitleFont(m_settings.value(key(SettingsKeys::PC_Font)).toString());
    m_player.setSubtitleSize(size);
    m_player.setSubtitleOverride(overrideStyle);
    m_player.setSubtitleBold(bold);
    m_player.setSubtitleItalic(italic);
    m_player.setSubtitleOutline(outline);
    m_player.setSubtitleColor(color);
    m_player.setSubtitleOutlineColor(outlineColor);
    m_player.setSubtitleCharset(charset);
    m_player.setSubtitleFiles(true, m_settings.value(key(SettingsKeys::PC_SubtitlePath)).toString());
}

void EnginePreferences::applyRegion()
{
    // The record that the engine reads at its start is filled by the player.
    StoredPreferences stored(m_settings, StoredPreferences::Absent::Stays);
    m_player.setRegion(stored.number(PreferenceRows::Region));
}

void EnginePreferences::applyShader(const QString &path)
{
    if (path.isEmpty()) {
        (void)m_player.setCustomShader(path);
        m_settings.remove(key(SettingsKeys::PC_CustomShader));
    } else if (m_player.setCustomShader(path)) {
        m_settings.setValue(key(SettingsKeys::PC_CustomShader), path);
    }
}

void EnginePreferences::applyStoredShader()
{
    // One that is not there stays stored: the disc that holds it may come back.
    const QString path = m_settings.value(key(SettingsKeys::PC_CustomShader)).toString();
    if (!path.isEmpty())
        (void)m_player.setCustomShader(path);
}

void EnginePreferences::applyProxy()
{
    const StoredProxy proxy = StoredProxy::inUse(m_settings);
    if (!proxy.isEnabled) {
        m_player.setProxy(kNoProxy, {}, 0, {}, {});
        return;
    }
    bool isNumber = false;
    const quint16 port = proxy.port.trimmed().toUShort(&isNumber);
    const QString host = proxy.host.trimmed();
    if (!isNumber || port == 0 || host.isEmpty()) {
        qInfo().noquote().nospace() << "[Engine config] the proxy has no usable address: " << proxy.host
                                    << ":" << proxy.port;
        m_player.setProxy(kNoProxy, {}, 0, {}, {});
        return;
    }
    m_player.setProxy(proxy.type, host, port, proxy.userName, proxy.password);
}
