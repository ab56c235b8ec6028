#pragma once

namespace lullet {

// Gives the memory freed by a large view back to the system. The C library keeps freed memory
// for the process to reuse; a list of the whole history, closed, would otherwise stay resident
// all day. Asked for often, it trims once, a moment after the last asking.
class MemoryTrim {
public:
    // Once, before anything is allocated in earnest: how the C library keeps what is freed.
    static void configure();
    static void soon();
};

} // namespace lullet
