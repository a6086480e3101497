#include "controls/detail/CtrlFactory.h"

#include "controls/CEAttempt.h"
#include "controls/CEBtn.h"
#include "controls/CEBtnList.h"
#include "controls/CECb.h"
#include "controls/CEChart.h"
#include "controls/CECheck.h"
#include "controls/CEEdit.h"
#include "controls/CEGrid.h"
#include "controls/CELabel.h"
#include "controls/CELed.h"
#include "controls/CEList.h"
#include "controls/CERadio.h"
#include "controls/CERadius.h"
#include "controls/CESlider.h"
#include "controls/CEText.h"
#include "controls/CEWnd.h"

#include <algorithm>
#include <iterator>

namespace vant::detail
{

namespace
{

using Maker = std::unique_ptr<CECtrl> (*)();

template <class Ctrl>
std::unique_ptr<CECtrl> Make()
{
    return std::make_unique<Ctrl>();
}

struct Entry {
    int typeCode;
    Maker make;
};

constexpr Entry classes[] = {
    {CECtrl::typeText, Make<CEText>},       {CECtrl::typeLabel, Make<CELabel>},
    {CECtrl::typeEdit, Make<CEEdit>},       {CECtrl::typeBtn, Make<CEBtn>},
    {CECtrl::typeCheck, Make<CECheck>},     {CECtrl::typeCb, Make<CECb>},
    {CECtrl::typeSlider, Make<CESlider>},   {CECtrl::typeLed, Make<CELed>},
    {CECtrl::typeList, Make<CEList>},       {CECtrl::typeWnd, Make<CEWnd>},
    {CECtrl::typeRadio, Make<CERadio>},     {CECtrl::typeGrid, Make<CEGrid>},
    {CECtrl::typeChart, Make<CEChart>},     {CECtrl::typeRadius, Make<CERadius>},
    {CECtrl::typeBtnList, Make<CEBtnList>}, {CECtrl::typeAttempt, Make<CEAttempt>},
};

} // namespace

std::unique_ptr<CECtrl> MakeCtrl(int typeCode)
{
    const auto* const found = std::find_if(std::begin(classes), std::end(classes),
                                           [typeCode](const Entry& e) { return e.typeCode == typeCode; });
    return found != std::end(classes) ? found->make() : nullptr;
}

} // namespace vant::detail
