// What proves a control of the settings: what it is set to, and where that is seen beside the store.
#pragma once

#include "ActionRig.h"

#include <QVariant>

#include <vector>

struct SettingProof {
    enum class When { AtOnce, NextSource };

    const char *key;
    QVariant value;
    // Where engine or program have it; none where it is read at a start or by a disc.
    ActionRig::Read read{};
    QString wanted{};
    When when{When::AtOnce};
    QVariant stored{}; // where the file has something else than the value
};

// Set together, in their order, and stored with one "OK".
struct SettingPass {
    const char *name;
    const char *clip;
    std::vector<SettingProof> proofs;
    // The source that follows; the same clip where nothing else is said.
    const char *next{nullptr};
};

namespace SettingProofs {

[[nodiscard]] std::vector<SettingPass> passes(const ActionRig &rig);

// Controls that can't be used without what this machine has not.
[[nodiscard]] std::vector<const char *> withoutAMeans();

// Lets the sound system have a digital output beside an analog one, whatever the machine has. Before the
// first player.
void makeSoundDevices(const QString &folder);

} // namespace SettingProofs
