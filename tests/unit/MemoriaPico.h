// The memory that a piece of work takes at its peak, beyond what the
// process held before it: the peak resident size is reset, the work runs,
// and the new peak is read (Linux, /proc/self).
#pragma once

#include <cstdint>
#include <fstream>
#include <functional>
#include <string>

namespace sorvelo::teste {

inline int64_t linhaStatusKb(const std::string& nome) {
    std::ifstream status("/proc/self/status");
    std::string linha;
    while (std::getline(status, linha))
        if (linha.rfind(nome + ":", 0) == 0) return std::stoll(linha.substr(nome.size() + 1));
    return -1;
}

// Bytes above the resident size at the start, at the peak of f; -1 where
// the system can't tell.
inline int64_t picoDeMemoria(const std::function<void()>& f) {
    {
        std::ofstream limpa("/proc/self/clear_refs");
        limpa << "5";
        if (!limpa) return -1;
    }
    const int64_t antes = linhaStatusKb("VmRSS");
    f();
    const int64_t pico = linhaStatusKb("VmHWM");
    if (antes < 0 || pico < 0) return -1;
    return (pico - antes) * 1024;
}

} // namespace sorvelo::teste
