#include "host/dwg/drawing/LostEntries.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace host::dwg {

namespace {

/// A tag of the text form where it stands: two lines.
struct WrittenTag
{
    int code = 0;
    std::string_view value;
    std::size_t end = 0;
};

WrittenTag writtenTagAt(std::string_view text, std::size_t begin)
{
    const std::size_t codeEnd = text.find('\n', begin);
    const std::size_t end = text.find('\n', codeEnd + 1);
    WrittenTag tag{0, text.substr(codeEnd + 1, end - codeEnd - 1), end + 1};
    const std::size_t digits = text.find_first_not_of(' ', begin);
    std::from_chars(text.data() + digits, text.data() + codeEnd, tag.code);
    return tag;
}

bool isLost(const WrittenTag &tag, const std::unordered_set<std::uint64_t> &lost)
{
    constexpr int softOwner = 350;
    constexpr int hardOwner = 360;
    std::uint64_t handle = 0;
    std::from_chars(tag.value.data(), tag.value.data() + tag.value.size(), handle, 16);
    return (tag.code == softOwner || tag.code == hardOwner) && lost.contains(handle);
}

/// Finds what names objects: the entries of dictionaries, and the extension dictionary of any record.
class NamingTags
{
public:
    /// How many tags stand for what the tag names, the last but `behind` of which has the handle; 0 where it names
    /// none.
    struct Run
    {
        int tags = 0;
        int behind = 0;
    };

    Run from(const WrittenTag &tag)
    {
        if (tag.code == 0)
            m_isDictionary = tag.value == "DICTIONARY" || tag.value == "ACDBDICTIONARYWDFLT";
        if (tag.code == 102 && tag.value == "{ACAD_XDICTIONARY")
            return {3, 1};
        return m_isDictionary && tag.code == 3 ? Run{2, 0} : Run{};
    }

private:
    bool m_isDictionary = false;
};

} // namespace

void leaveOutLostEntries(const std::unordered_set<std::uint64_t> &lost, std::string &text, std::size_t begin)
{
    if (lost.empty())
        return;
    NamingTags naming;
    std::size_t kept = begin; // where the next tag that stays has its place
    for (std::size_t place = begin; place < text.size();) {
        WrittenTag tag = writtenTagAt(text, place);
        const NamingTags::Run run = naming.from(tag);
        bool isLeftOut = false;
        for (int i = 1; i < run.tags; ++i) {
            tag = writtenTagAt(text, tag.end);
            isLeftOut |= i + run.behind + 1 == run.tags && isLost(tag, lost);
        }
        if (!isLeftOut) {
            std::copy_n(text.data() + place, tag.end - place, text.data() + kept);
            kept += tag.end - place;
        }
        place = tag.end;
    }
    text.resize(kept);
}

} // namespace host::dwg
