// Who the program is and where each of its files lives; nothing else builds these paths.
// Made before the application object exists, so no path depends on the application's values in Qt.
// The identity is handed over once, at the very start, before any other thread runs; everything else is safe
// on every thread.
#pragma once

#include "Singleton.h"

#include <QDate>
#include <QString>

#include <atomic>
#include <functional>
#include <mutex>

class ApplicationInfoManager final : public Singleton<ApplicationInfoManager> {
public:
    enum RunMode { PcMode = 1, TvMode = 2 };

    // Constants of the product.
    [[nodiscard]] static QString productName();
    // What a desktop knows the program by: the base name of its desktop entry and icon, the class of its
    // windows and the name of its media session.
    [[nodiscard]] static QString desktopName();
    [[nodiscard]] static QString makerName();
    [[nodiscard]] static QString registryHelperName();
    [[nodiscard]] static QString hardwareCheckName();
    [[nodiscard]] static QString advertisementName();
    [[nodiscard]] static QString updaterName();
    [[nodiscard]] static QString certificateFileName();
    [[nodiscard]] static QString mediaServerHost();
    [[nodiscard]] static QString classKeyRoot();
    // The name under which associated file types are registered.
    [[nodiscard]] static QString progId();

    // Identity.
    void setProgramFileName(const QString &fileName) { m_programFileName = fileName; }
    void setVersion(const QString &version) { m_version = version; }
    void setBuildDate(int year, int month, int day) { m_buildDate = QDate(year, month, day); }
    void setChannel(const QString &channel) { m_channel = channel; }
    [[nodiscard]] QString programFileName() const { return m_programFileName; }
    [[nodiscard]] QString version() const { return m_version; }
    [[nodiscard]] QDate buildDate() const { return m_buildDate; }
    [[nodiscard]] QString channel() const { return m_channel; }

    // The program's own file, and the two registry texts formed from it: "<file>" "%1" and "<file>",0.
    [[nodiscard]] QString programFile() const;
    [[nodiscard]] QString openCommand() const;
    [[nodiscard]] QString iconCommand() const;

    // 1 PC mode, 2 TV mode; 0 until the mode is chosen.
    void setRunMode(int mode) { m_runMode = mode; }
    [[nodiscard]] int runMode() const { return m_runMode; }

    // Dots per inch of the primary screen, noted at start; 96 until then.
    void setScreenDpi(int dpi) { m_screenDpi = dpi; }
    [[nodiscard]] int screenDpi() const { return m_screenDpi; }
    // What sizes the elements of the interface: dpi / 96.0, or in TV mode what the TV source says once there
    // is one.
    [[nodiscard]] float scaleFactor() const;
    void setTvScaleSource(std::function<float()> source);

    // Paths. A folder is made when it is asked for, as far as that is possible.
    [[nodiscard]] QString dataFolder() const;
    [[nodiscard]] QString configurationFile() const;
    [[nodiscard]] QString logFolder() const;
    [[nodiscard]] static QString logFileName();
    [[nodiscard]] QString logFile() const;
    [[nodiscard]] QString picturesFolder() const;
    [[nodiscard]] QString tempFolder() const;
    [[nodiscard]] QString updateTempFolder() const;
    // Where it lies when there is one: nothing is made.
    [[nodiscard]] QString updateTempLocation() const;
    [[nodiscard]] QString updateConfigurationFile() const;
    [[nodiscard]] QString posterTempFolder() const;
    [[nodiscard]] QString mediaServerFolder() const;
    [[nodiscard]] QString audioDumpFile() const;
    [[nodiscard]] QString applicationFolder() const;
    // Where the picture shaders lie that come with the program.
    [[nodiscard]] QString shaderFolder() const;
    [[nodiscard]] QString languageFolder() const;

    // Debug switches: log lines of hot keys and of file associations.
    [[nodiscard]] static bool debugHotKey();
    [[nodiscard]] static bool debugFileAssociation();

private:
    friend class Singleton<ApplicationInfoManager>;
    ApplicationInfoManager() = default;

    QString m_programFileName;
    QString m_version;
    QDate m_buildDate;
    QString m_channel;
    std::atomic<int> m_runMode{0};
    std::atomic<int> m_screenDpi{96};
    mutable std::mutex m_tvScaleMutex;
    std::function<float()> m_tvScaleSource;
};
