// One setting as a row of a table: its key, what it is set with, its default and its words.
//
// The texts are source texts of the context "NormalSettingPage", translated when they are shown, so that a
// change of language reaches them.
#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

enum class SettingsPageId {
    General,
    Playback,
    Library,
    Video,
    Display3D,
    Audio,
    Subtitle,
    BluRay,
    FileAssociation,
    Snapshot,
    HotKeys,
    Network,
};
inline constexpr int SettingsPageCount = 12;

// The save operations, in the order in which they run.
enum class SaveStep {
    General,
    PlayModes,
    Languages,
    LibraryState,
    Video,
    Audio,
    Display3D,
    Subtitle,
    BluRay,
    FileAssociation,
    Snapshot,
    HotKeys,
    Network,
};
inline constexpr int SaveStepCount = 13;

enum class SettingControl {
    Switch,
    Choice,
    Radio, // a choice with all its entries in view
    Slider,
    Text,
    Secret,
    Folder,
    Color,
    FontFamily,
    Device, // its choices are the devices of the engine
    None,   // stored with its page, set by another control
};

struct SettingChoice {
    const char *text;
    QVariant value;
    QString name{}; // what is shown instead of a text, the same in every language
    const char *context{"NormalSettingPage"};

    [[nodiscard]] QString shown() const;
};

enum class FolderNeed { None, Readable, Writable };

struct SettingRow {
    const char *key;
    SettingControl control;
    const char *text;
    SaveStep step;
    QVariant standard;
    std::vector<SettingChoice> choices{};
    int minimum{0};
    int maximum{0};
    // A row that is not stored is set by the pages' rules; its key is only its name.
    bool isStored{true};
    // A heading that stands above the row.
    const char *head{nullptr};
    FolderNeed folder{FolderNeed::None};
    // A stored value as the program takes it, invalid for one that it can't use; for rows where that is not
    // just a value that the control can show.
    std::function<QVariant(const QVariant &)> taken{};
    // The number of a slider as the user reads it.
    std::function<QString(int)> valueText{};

    [[nodiscard]] static QString translated(const char *text);
};
