#include "platform/Vant.h"
#include "settings/CESetObj.h"

void Vant::Settings(CESetObj& obj)
{
    obj.Item(L"ImgInd", imgInd);
}
