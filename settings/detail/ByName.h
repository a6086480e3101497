#pragma once

namespace vant::detail
{

/** The first element of a list whose m_name is exactly that, or null. */
template <class List, class Name>
auto FirstByName(const List& list, const Name& name)
{
    for (auto* pos = list.GetHeadPos(); pos != nullptr;) {
        auto* const element = list.GetNext(pos);
        if (element != nullptr && element->m_name == name)
            return element;
    }
    return decltype(list.GetHead()){};
}

} // namespace vant::detail
