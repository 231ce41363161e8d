// Calls an interface as a library built elsewhere does: through the number of the operation in its table. The
// object's first word points to the table, and the object goes in as the first argument (x86-64, System V).
#pragma once

template<class Result = void, class... Arguments>
Result callSlot(void *object, int slot, Arguments... arguments)
{
    using Operation = Result (*)(void *, Arguments...);
    const auto *table = *static_cast<void ***>(object);
    return reinterpret_cast<Operation>(table[slot])(object, arguments...);
}
