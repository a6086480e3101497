#include "display/detail/TextureFile.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

constexpr std::size_t shortStem = 8;
constexpr std::size_t shortExtension = 3;

/** The small letter of a Western European, Greek or Cyrillic one, in whose code pages old models were
 * written. The C library's function knows no more than the locale, which usually is none. */
wchar_t SmallLetter(wchar_t letter)
{
    const auto isWithin = [letter](wchar_t first, wchar_t last) { return letter >= first && letter <= last; };
    const bool isWestern = isWithin(L'A', L'Z') || (isWithin(0xC0, 0xDE) && letter != 0xD7);
    const bool isGreek = isWithin(0x391, 0x3AB);
    if (isWestern || isGreek || isWithin(0x410, 0x42F))
        return static_cast<wchar_t>(letter + 0x20);
    return isWithin(0x400, 0x40F) ? static_cast<wchar_t>(letter + 0x50) : letter;
}

bool IsSameWhateverCase(std::wstring_view a, std::wstring_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return SmallLetter(x) == SmallLetter(y); });
}

struct NameParts {
    explicit NameParts(std::wstring_view name)
        : stem(name.substr(0, name.rfind(L'.')))
        , extension(name.substr(std::min(name.size(), stem.size() + 1)))
    {
    }
    std::wstring_view stem;
    std::wstring_view extension;
};

/** Whether a name is what was left of a file's longer one. */
bool IsCutFrom(const NameParts& cut, std::wstring_view file)
{
    const NameParts whole(file);
    return IsSameWhateverCase(cut.stem, whole.stem.substr(0, shortStem)) &&
           IsSameWhateverCase(cut.extension, whole.extension.substr(0, shortExtension));
}

} // namespace

const std::wstring* FindTextureFile(std::wstring_view name, std::span<const std::wstring> files)
{
    name = name.substr(name.find_last_of(L"\\/:") + 1); // npos + 1 is the whole name
    if (name.empty())
        return nullptr;
    const auto first = [files](auto fits) -> const std::wstring* {
        const auto found = std::find_if(files.begin(), files.end(), fits);
        return found == files.end() ? nullptr : &*found;
    };
    if (const auto* same = first([name](const std::wstring& file) { return file == name; }))
        return same;
    if (const auto* same = first([name](const std::wstring& file) { return IsSameWhateverCase(file, name); }))
        return same;
    const NameParts parts(name);
    if (parts.stem.size() > shortStem || parts.extension.size() > shortExtension)
        return nullptr;
    return first([&parts](const std::wstring& file) { return IsCutFrom(parts, file); });
}

} // namespace vant::detail
