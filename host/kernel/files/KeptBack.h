#pragma once

#include <QString>

#include <vector>

namespace host::kernel {

/// Something that a drawing or program was kept from doing, for a person to see and perhaps to allow.
struct KeptBack
{
    enum class Act
    {
        Read, ///< the drawing names a file that was not read
        Run,  ///< a Lisp program or script was not loaded
        Start ///< another program was not started; only the user's file of settings lets that be
    };
    Act act = Act::Read;
    QString path;              ///< full, but of Start: as it was named
    QString reason;            ///< the end of a sentence
    bool mayBeAllowed = false; ///< see TrustedFolders::allow()

    /// The reason may be told in other words.
    bool operator==(const KeptBack &other) const { return act == other.act && path == other.path; }
};

/// What one document was kept from doing since it was opened, each once, in order. It takes no more than `most`, as a
/// drawing may name a million files; further ones are counted.
class KeptBackList
{
public:
    static constexpr std::size_t most = 200;

    /// False for what is in already.
    bool add(const KeptBack &item);
    void remove(const KeptBack &item);
    const std::vector<KeptBack> &items() const { return m_items; }
    /// How many came behind the last that is listed; one and the same counts each time.
    std::size_t furtherCount() const { return m_further; }
    bool isEmpty() const { return m_items.empty(); }

private:
    std::vector<KeptBack> m_items;
    std::size_t m_further = 0;
};

} // namespace host::kernel
