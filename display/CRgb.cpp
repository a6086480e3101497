#include "display/CRgb.h"

#include "core/detail/NumberText.h"
#include "settings/CESetObj.h"

#include <array>
#include <string_view>

void CRgb::Serialize(CArchive& ar)
{
    if (ar.IsLoading())
        ar >> red >> green >> blue >> alpha;
    else
        ar << red << green << blue << alpha;
}

void CRgb::Settings(const CString& key, CESetObj& obj)
{
    if (obj.IsStoring()) {
        // The last field is deliberately no directive: the text ends in it as it stands.
        obj.Add(key, L"%d, %d, %d, &d", red, green, blue);
        return;
    }
    CString text;
    if (!obj.GetItm(key, text))
        return;
    std::wstring_view rest(text.GetString(), static_cast<std::size_t>(text.GetLength()));
    std::array<unsigned char, 3> channels{};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        if (i > 0) {
            if (!rest.starts_with(L','))
                return;
            rest.remove_prefix(1);
        }
        const auto number = vant::detail::ScanInt(rest);
        if (!number)
            return;
        channels[i] = static_cast<unsigned char>(number.value & 0xFF);
        rest.remove_prefix(number.used);
    }
    red = channels[0];
    green = channels[1];
    blue = channels[2];
}
