// The setters that push the stored preferences into the engine.
#include "QPlayer.h"

#include "EngineProperties.h"
#include "PlayerText.h"

#include <QDebug>
#include <QFileInfo>

bool QPlayer::setBoolProperty(const char *name, bool value)
{
    return fromTool(false, [=](libvp::IVDPlayTool &tool) { return tool.setBoolProperty(name, value); });
}

bool QPlayer::setIntProperty(const char *name, int value)
{
    return fromTool(false, [=](libvp::IVDPlayTool &tool) { return tool.setIntProperty(name, value); });
}

bool QPlayer::setStringProperty(const char *name, const QByteArray &value)
{
    return fromTool(false, [name, &value](libvp::IVDPlayTool &tool) {
        return tool.setStringProperty(name, value.constData());
    });
}

void QPlayer::setHardwareDecoding(bool on)
{
    onTool([on](libvp::IVDPlayTool &tool) { tool.enableHardwareDecoding(on); });
}

void QPlayer::setToneMap(bool on)
{
    onTool([on](libvp::IVDPlayTool &tool) { tool.enableToneMap(on); });
}

void QPlayer::setHDRMode(int mode)
{
    onTool([mode](libvp::IVDPlayTool &tool) { tool.setHDRMode(mode); });
}

void QPlayer::setSDRMode(int mode)
{
    onTool([mode](libvp::IVDPlayTool &tool) { tool.setSDRMode(mode); });
}

void QPlayer::setSDRValue(int value)
{
    setIntProperty(EngineProperties::SdrValue, value);
}

void QPlayer::setLimitedRange(bool limited)
{
    setBoolProperty(EngineProperties::LimitedRange, limited);
}

void QPlayer::setVideoOutput(const QString &outputs)
{
    setStringProperty(EngineProperties::VideoOutput, outputs.toUtf8());
}

QList<PlayerAudioDevice> QPlayer::knownAudioDevices()
{
    std::lock_guard lock(m_stateMutex);
    return m_audioDevices;
}

QList<PlayerAudioDevice> QPlayer::audioDevices()
{
    QList<PlayerAudioDevice> devices = knownAudioDevices();
    if (!devices.isEmpty())
        return devices;
    onTool([&devices](libvp::IVDPlayTool &tool) {
        const libvp::VDAudioDeviceList *list = nullptr;
        if (!tool.audioDevices(&list) || !list || !list->devices)
            return;
        for (int index = 0; index < list->count; ++index) {
            const libvp::VDAudioDevice &device = list->devices[index];
            devices.append({PlayerText::fixedText(device.name), device.connection, device.capability});
        }
    });
    std::lock_guard lock(m_stateMutex);
    m_audioDevices = devices;
    return devices;
}

QString QPlayer::currentAudioDevice()
{
    return fromTool(QString(), [](libvp::IVDPlayTool &tool) {
        return PlayerText::engineText(tool.currentAudioDevice());
    });
}

bool QPlayer::setAudioOutput(bool passThrough, const QString &device)
{
    if (device.isEmpty())
        return false;
    const QByteArray name = device.toUtf8();
    const char *property = passThrough ? EngineProperties::PassThroughDevice : EngineProperties::AudioDevice;
    return fromTool(false, [=, &name](libvp::IVDPlayTool &tool) {
        if (!tool.switchAudioOutput(passThrough, name.constData()))
            return false;
        tool.setStringProperty(property, name.constData());
        tool.setBoolProperty(EngineProperties::PassThrough, passThrough);
        return true;
    });
}

void QPlayer::setOutputMode(int value)
{
    onTool([value](libvp::IVDPlayTool &tool) { tool.setSpeakerLayout(value); });
}

void QPlayer::setAudioChannels(int layout)
{
    setIntProperty(EngineProperties::Channels, layout);
}

void QPlayer::setAudioAmplification(float amount)
{
    onTool([amount](libvp::IVDPlayTool &tool) { tool.setAudioAmplification(amount); });
}

void QPlayer::setAudioDelay(float seconds)
{
    onTool([seconds](libvp::IVDPlayTool &tool) { tool.setAudioDelay(seconds); });
}

int QPlayer::passThrough()
{
    return fromTool(0, [](libvp::IVDPlayTool &tool) { return tool.passThrough(); });
}

void QPlayer::setSubtitleFont(const QString &family)
{
    const QByteArray name = family.toUtf8();
    onTool([&name](libvp::IVDPlayTool &tool) { tool.setSubtitleFont(name.constData()); });
}

void QPlayer::setSubtitleSize(int size)
{
    onTool([size](libvp::IVDPlayTool &tool) { tool.setSubtitleSize(size); });
}

void QPlayer::setSubtitlePosition(int position)
{
    onTool([position](libvp::IVDPlayTool &tool) { tool.setSubtitlePosition(position, 0); });
}

void QPlayer::setSubtitleColor(const QString &color)
{
    const QByteArray text = color.toUtf8();
    onTool([&text](libvp::IVDPlayTool &tool) { tool.setSubtitleColor(text.constData()); });
}

void QPlayer::setSubtitleOutlineColor(const QString &color)
{
    setStringProperty(EngineProperties::OutlineColor, color.toUtf8());
}

void QPlayer::setSubtitleBold(bool bold)
{
    onTool([bold](libvp::IVDPlayTool &tool) { tool.setSubtitleBold(bold); });
}

void QPlayer::setSubtitleItalic(bool italic)
{
    onTool([italic](libvp::IVDPlayTool &tool) { tool.setSubtitleItalic(italic); });
}

void QPlayer::setSubtitleOutline(bool outline)
{
    onTool([outline](libvp::IVDPlayTool &tool) { tool.setSubtitleOutline(outline); });
}

void QPlayer::setSubtitleOverride(bool overrideStyle)
{
    onTool([overrideStyle](libvp::IVDPlayTool &tool) { tool.setSubtitleOverride(overrideStyle); });
}

void QPlayer::setSubtitleCharset(const QString &code)
{
    setStringProperty(EngineProperties::Charset, code.toLocal8Bit());
}

void QPlayer::setSubtitleOffset(float seconds)
{
    onTool([seconds](libvp::IVDPlayTool &tool) { tool.setSubtitleOffset(seconds); });
}

void QPlayer::setSubtitleFiles(bool on, const QString &folder)
{
    setStringProperty(EngineProperties::SubtitleFolder, folder.toUtf8());
    setBoolProperty(EngineProperties::SubtitleFiles, on);
}

bool QPlayer::setCustomShader(const QString &path)
{
    if (!path.isEmpty() && !QFileInfo(path).isFile()) {
        qInfo().noquote() << "[Engine] no such shader:" << path;
        return false;
    }
    const QByteArray name = path.toUtf8();
    return fromTool(false,
                    [&name](libvp::IVDPlayTool &tool) { return tool.setCustomShader(name.constData()); });
}

QString QPlayer::customShader()
{
    return fromTool(QString(),
                    [](libvp::IVDPlayTool &tool) { return PlayerText::engineText(tool.customShader()); });
}

void QPlayer::setRegion(int region)
{
    onTool([region](libvp::IVDPlayTool &tool) { tool.setRegion(region); });
}

void QPlayer::setProxy(int type, const QString &host, int port, const QString &user, const QString &password)
{
    const QByteArray hostName = host.toUtf8();
    const QByteArray userName = user.toUtf8();
    const QByteArray secret = password.toUtf8();
    onTool([&, type, port](libvp::IVDPlayTool &tool) {
        tool.setProxy(type, hostName.constData(), port, userName.constData(), secret.constData());
    });
}

void QPlayer::setUiLanguage(int code)
{
    onTool([code](libvp::IVDPlayTool &tool) { tool.setUiLanguage(code); });
}
