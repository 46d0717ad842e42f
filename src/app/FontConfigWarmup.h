#pragma once

#include <thread>

// Reads the desktop's font configuration on another thread while start-up goes on. Loading it
// (fontconfig parses dozens of XML files) is the largest single cost of the first text the
// window lays out; Qt loads it through the same library later and finds it done. Where the
// library is missing nothing happens.
class FontConfigWarmup
{
public:
    FontConfigWarmup();
    ~FontConfigWarmup();

    FontConfigWarmup(const FontConfigWarmup &) = delete;
    FontConfigWarmup &operator=(const FontConfigWarmup &) = delete;

private:
    std::thread m_thread;
};
