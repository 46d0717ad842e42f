#pragma once

// Hands the heap's free pages back to the system. A large catalogue is parsed from megabytes of
// JSON on a worker thread and rebuilt into every view; the C library keeps what those steps
// freed (much of it in the worker thread's own heap, which the interface thread never reuses),
// so without this the client's resident memory would carry its largest parse for good.
class HeapTrim
{
public:
    static void releaseFreePages();
};
