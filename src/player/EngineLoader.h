// How the player comes to the two functions of the engine library.
#pragma once

#include "contract/Orbix.h"

#include <QLibrary>
#include <QString>

#include <memory>

// One library. Used by one QPlayer, on the thread that makes it and, for unload(), on the one that ends it.
class IEngineLoader {
public:
    virtual ~IEngineLoader() = default;

    // False: errorText() tells why, and the two functions stay null.
    [[nodiscard]] virtual bool load() = 0;
    [[nodiscard]] virtual QString errorText() const = 0;
    [[nodiscard]] virtual libvp::CreateVDPlayerFunction createFunction() const = 0;
    [[nodiscard]] virtual libvp::ReleaseVDPlayerFunction releaseFunction() const = 0;

    // After the last call into the library. Nothing happens when it is not loaded.
    virtual void unload() = 0;
};

// The library of a file, by default "Orbix" in the application folder. The environment variable QUORIN_ENGINE
// names another file, for runs without the real engine.
class LibraryEngineLoader final : public IEngineLoader {
public:
    LibraryEngineLoader();
    explicit LibraryEngineLoader(const QString &file);

    // Reads the default library in the background, so that the load that follows finds it in memory: it
    // stands on some hundred other libraries, and the program has other things to do meanwhile. A failure is
    // left to that load to tell. Needs no application object.
    static void warmUp();

    [[nodiscard]] bool load() override;
    [[nodiscard]] QString errorText() const override { return m_error; }
    [[nodiscard]] libvp::CreateVDPlayerFunction createFunction() const override { return m_create; }
    [[nodiscard]] libvp::ReleaseVDPlayerFunction releaseFunction() const override { return m_release; }
    void unload() override;

private:
    QLibrary m_library;
    QString m_error;
    libvp::CreateVDPlayerFunction m_create{nullptr};
    libvp::ReleaseVDPlayerFunction m_release{nullptr};
};
