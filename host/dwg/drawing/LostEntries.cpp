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

bool isLostEntry(const WrittenTag &tag, const std::unordered_set<std::uint64_t> &lost)
{
    constexpr int softOwner = 350;
    constexpr int hardOwner = 360;
    std::uint64_t handle = 0;
    std::from_chars(tag.value.data(), tag.value.data() + tag.value.size(), handle, 16);
    return (tag.code == softOwner || tag.code == hardOwner) && lost.contains(handle);
}

} // namespace

void leaveOutLostEntries(const std::unordered_set<std::uint64_t> &lost, std::string &text, std::size_t begin)
{
    if (lost.empty())
        return;
    constexpr int recordCode = 0;
    constexpr int nameCode = 3;
    bool isDictionary = false;
    std::size_t kept = begin; // where the next tag that stays has its place
    for (std::size_t place = begin; place < text.size();) {
        const WrittenTag tag = writtenTagAt(text, place);
        if (tag.code == recordCode)
            isDictionary = tag.value == "DICTIONARY" || tag.value == "ACDBDICTIONARYWDFLT";
        const bool isName = isDictionary && tag.code == nameCode;
        const WrittenTag named = isName ? writtenTagAt(text, tag.end) : tag;
        const std::size_t end = named.end;
        if (!isName || !isLostEntry(named, lost)) {
            std::copy_n(text.data() + place, end - place, text.data() + kept);
            kept += end - place;
        }
        place = end;
    }
    text.resize(kept);
}

} // namespace host::dwg
