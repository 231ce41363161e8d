// The 18 speeds of the engine: the index that it takes, the value that it reports and the text that the bar
// shows.
#pragma once

#include <QMap>
#include <QString>

namespace SpeedTable {

inline constexpr int First = 0;
inline constexpr int Last = 17;
inline constexpr int FirstRewind = 4;   // twice backwards
inline constexpr int Normal = 9;        // 1
inline constexpr int FirstForward = 13; // twice forwards

[[nodiscard]] QMap<int, float> values();
[[nodiscard]] QMap<int, QString> texts();

// The index of the value that lies nearest.
[[nodiscard]] int indexOf(float speed);

// The index that one step of the speed keys leads to. Forwards starts at 13 from all below, backwards at 4
// from all above.
[[nodiscard]] int step(int index, bool forward);

} // namespace SpeedTable
