#ifndef TESTTRACELIBRARY_H
#define TESTTRACELIBRARY_H

#include <dlfcn.h>

#include <string>
#include <vector>

/// What the test trace library was asked, in the order of the calls.
///
/// The library owns the one journal of the process, which lives as long as the library is loaded.
/// Texts are copies, so that they outlast the module that passed them. Nothing is locked.
struct TraceJournal
{
    /// A call of the register function.
    struct Registration
    {
        void *context;
        int constant;
        std::string moduleName;
        int *moduleId; ///< where the id goes; a test may write another id there at any time
    };

    /// A call of the level test.
    struct LevelTest
    {
        void *context = nullptr;
        int moduleAndLevel = 0; ///< the module's id above the level's eight bits
        int zero = 0;
        std::string file;
        int line = 0;

        int moduleId() const { return moduleAndLevel >> 8; }
        int level() const { return moduleAndLevel & 0xff; }
    };

    /// A call of the output function.
    struct Message
    {
        void *context;
        std::string text;    ///< the format with its arguments filled in
        LevelTest levelTest; ///< the level test asked last, which let the message through
    };

    std::vector<int> entryPointArguments; ///< first argument of each call of the entry point
    std::vector<Registration> registrations;
    std::vector<LevelTest> levelTests;
    std::vector<Message> messages;

    void *context = nullptr; ///< what the record names as context; null in the variant without one
    int firstModuleId = 0;   ///< id of the module registered first; the others follow one by one
    int levelTestAnswer = 0; ///< what the level test returns; not 0 suppresses every message

    /// Forgets level tests and messages. Registrations and the parameters stay.
    void clear()
    {
        levelTests.clear();
        messages.clear();
    }

    /// The texts of all messages.
    std::vector<std::string> texts() const
    {
        std::vector<std::string> result;
        for (const Message &message : messages)
            result.push_back(message.text);
        return result;
    }
};

/// A test's way to the test trace library, which the code under test opens under the same name.
///
/// The library is found through LD_LIBRARY_PATH, set to the directory of one variant. The object
/// keeps the library loaded, and with it the journal.
class TestTraceLibrary
{
public:
    static constexpr const char *FileName = "libQerlLogUtl.dylib";
    static constexpr const char *JournalFunctionName = "TestTrace_GetJournal";

    TestTraceLibrary()
        : m_handle(dlopen(FileName, RTLD_LAZY))
    {
        if (!m_handle)
            return;
        const auto getJournal =
            reinterpret_cast<TraceJournal *(*)()>(dlsym(m_handle, JournalFunctionName));
        m_journal = getJournal ? getJournal() : nullptr;
    }

    ~TestTraceLibrary()
    {
        if (m_handle)
            dlclose(m_handle);
    }

    TestTraceLibrary(const TestTraceLibrary &) = delete;
    TestTraceLibrary &operator=(const TestTraceLibrary &) = delete;

    /// Whether any process-wide reference keeps the library loaded; takes none itself.
    static bool isLoaded()
    {
        void *const handle = dlopen(FileName, RTLD_LAZY | RTLD_NOLOAD);
        if (handle)
            dlclose(handle);
        return handle != nullptr;
    }

    /// Null when the library was not found.
    TraceJournal *journal() const { return m_journal; }

private:
    void *m_handle;
    TraceJournal *m_journal = nullptr;
};

/// Exported by the library; TestTraceLibrary::journal() calls it.
extern "C" TraceJournal *TestTrace_GetJournal();

/// Exported by every variant but the one without it; stores the record's address.
extern "C" void LogTrace_GetGlobalObject(int argument, void **record);

#endif
