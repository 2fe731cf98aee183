// Runs a target on mutations of its corpus for a time and a number of inputs, and tells what fault it found.

#include "tests/fuzz/allocation_count.h"
#include "tests/fuzz/mutation.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);
/// The sanitizers' call before they end the process; null without them.
extern "C" [[gnu::weak]] void
__sanitizer_set_death_callback(void (*pCallback)()); // NOLINT(bugprone-reserved-identifier)

namespace {

constexpr int g_nLimitSeconds = 5;              // of the processor for one input, under the sanitizers too
constexpr std::size_t g_nKeptBytes = 1U << 24U; // for tables that are made by the first inputs and stay
constexpr int g_nFault = 1;
constexpr int g_nUnreadable = 4;

struct COptions {
    double m_dSeconds = 0.0;
    std::uint64_t m_nInputs = 0, m_nSeed = 1;
    std::size_t m_nBytesPerByte = 64, m_nFreeBytes = 1U << 16U;
    std::string m_strCorpus, m_strFault = "fault.input";
};

// What the fault handlers tell; they run wherever the target stands.
struct CPresent {
    const char* m_pFaultFile = "";
    const CInput* m_pInput = nullptr;
    volatile std::uint64_t m_nInput = 0;
    std::uint64_t m_nInputAtTick = 0;
};
CPresent g_present;

void Say(const char* text) {
    [[maybe_unused]] const auto nWritten = write(STDERR_FILENO, text, std::strlen(text));
}

/// Keeps the input of the fault. Only calls that a signal handler may make.
void KeepInput() {
    const int nFile = open(g_present.m_pFaultFile, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const auto nWritten = write(nFile, g_present.m_pInput->data(), g_present.m_pInput->size());
    close(nFile);
    Say(nWritten < 0 ? "\nits input could not be kept in " : "\nits input is kept in ");
    Say(g_present.m_pFaultFile);
    Say("\n");
}

[[noreturn]] void Fail(const char* what) {
    Say("fault: ");
    Say(what);
    KeepInput();
    _exit(g_nFault);
}

void OnCrash(int) {
    Fail("the target crashed");
}

void OnTooMuchMemory() {
    LiftAllocationLimit();
    Fail("the target asked for more memory than its input warrants");
}

void OnTick(int) {
    if (g_present.m_nInput == g_present.m_nInputAtTick) Fail("the target took too long");
    g_present.m_nInputAtTick = g_present.m_nInput;
}

void WatchForFaults() {
    if (__sanitizer_set_death_callback)
        __sanitizer_set_death_callback([] {
            Say("fault: the sanitizer's, told above");
            KeepInput();
        });
    else
        for (const int nSignal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
            std::signal(nSignal, OnCrash);
    std::signal(SIGABRT, OnCrash);
    std::signal(SIGPROF, OnTick);
    const itimerval tick = {{g_nLimitSeconds, 0}, {g_nLimitSeconds, 0}};
    setitimer(ITIMER_PROF, &tick, nullptr);
}

/// The end of the process may take longer than an input, as the sanitizer's search for leaks does.
void StopTheTicks() {
    const itimerval none = {};
    setitimer(ITIMER_PROF, &none, nullptr);
}

/// nMost is what the target may hold. An exception out of it ends the process: it is a fault too.
void RunOne(const CInput& input, std::size_t nMost) noexcept {
    g_present.m_pInput = &input;
    g_present.m_nInput = g_present.m_nInput + 1;
    // A copy that ends where its block ends: a byte beyond it is a fault that the sanitizer sees.
    const auto pCopy = std::make_unique<std::uint8_t[]>(input.size());
    std::copy(input.begin(), input.end(), pCopy.get());
    LimitAllocations(nMost, OnTooMuchMemory);
    LLVMFuzzerTestOneInput(pCopy.get(), input.size());
    LiftAllocationLimit();
}

std::vector<CInput> ReadCorpus(const std::string& strFolder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(strFolder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<CInput> corpus;
    for (const std::filesystem::path& file : files) {
        std::ifstream stream(file, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return corpus;
}

/// The corpus as it is, twice, then mutations until time and number are both reached.
void Run(const std::vector<CInput>& corpus, const COptions& options) {
    using CClock = std::chrono::steady_clock;
    const auto start = CClock::now();
    const auto seconds = [&] { return std::chrono::duration<double>(CClock::now() - start).count(); };
    const auto run = [&](const CInput& input, std::size_t nFree) {
        RunOne(input, nFree + options.m_nBytesPerByte * input.size());
    };
    for (const std::size_t nFree : {g_nKeptBytes, options.m_nFreeBytes})
        for (const CInput& input : corpus)
            run(input, nFree);
    CRandom random(options.m_nSeed);
    while (g_present.m_nInput < options.m_nInputs || seconds() < options.m_dSeconds)
        run(Mutate(corpus, random), options.m_nFreeBytes);
    std::cout << g_present.m_nInput << " inputs in " << seconds() << " s, seed " << options.m_nSeed
              << ": no fault\n";
}

} // namespace

int main(int argc, char** argv) {
    COptions options;
    CLI::App app("Runs a target on mutations of its corpus.");
    app.add_option("--seconds", options.m_dSeconds, "Go on at least so long");
    app.add_option("--inputs", options.m_nInputs, "and for at least so many inputs");
    app.add_option("--seed", options.m_nSeed, "Of the mutations")->capture_default_str();
    app.add_option("--bytes-per-byte", options.m_nBytesPerByte, "What may be held for each byte of an input")
        ->capture_default_str();
    app.add_option("--free-bytes", options.m_nFreeBytes, "and for any input")->capture_default_str();
    app.add_option("--fault", options.m_strFault, "Where the input of a fault is kept")
        ->capture_default_str();
    app.add_option("corpus", options.m_strCorpus, "Folder of inputs")->required();
    CLI11_PARSE(app, argc, argv);
    try {
        const std::vector<CInput> corpus = ReadCorpus(options.m_strCorpus);
        if (corpus.empty()) throw std::runtime_error(options.m_strCorpus + " holds no input");
        g_present.m_pFaultFile = options.m_strFault.c_str();
        WatchForFaults();
        Run(corpus, options);
        StopTheTicks();
    } catch (const std::filesystem::filesystem_error& error) {
        std::cerr << error.what() << '\n';
        return g_nUnreadable;
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n';
        return g_nUnreadable;
    }
    return 0;
}
