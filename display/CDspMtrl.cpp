#include "display/CDspMtrl.h"

#include "core/detail/NumberText.h"
#include "display/detail/GLCalls.h"
#include "display/detail/GLName.h"
#include "display/detail/PixelRows.h"
#include "platform/Vant.h"
#include "settings/CESetObj.h"

#include <atlimage.h>

#include <GL/gl.h>

#include <array>
#include <cmath>
#include <string_view>
#include <vector>

using namespace vant::detail;

namespace
{

constexpr std::size_t channels = 3; // of a colour in the settings: red, green, blue

/** "%f,%f,%f" */
CString ColourText(const CRgbf& colour)
{
    constexpr int decimals = 6;
    std::array<wchar_t, channels*(fixedTextMax + 1)> text;
    wchar_t* end = WriteFixed(text.data(), colour.red, decimals);
    *end++ = L',';
    end = WriteFixed(end, colour.green, decimals);
    *end++ = L',';
    end = WriteFixed(end, colour.blue, decimals);
    return CString(text.data(), static_cast<int>(end - text.data()));
}

void ExchangeColour(CESetObj& obj, LPCWSTR key, CRgbf& colour)
{
    if (obj.IsStoring()) {
        CString text = ColourText(colour);
        obj.Item(key, text);
        return;
    }
    CString text;
    if (!obj.GetItm(key, text))
        return;
    std::array<double, channels> values{};
    const std::wstring_view view(text.GetString(), static_cast<std::size_t>(text.GetLength()));
    if (ScanDoubles(view, values) != channels)
        return;
    const CRgbf read(static_cast<float>(values[0]), static_cast<float>(values[1]),
                     static_cast<float>(values[2]), colour.alpha);
    if (std::isfinite(read.red) && std::isfinite(read.green) && std::isfinite(read.blue))
        colour = read;
}

void ExchangeFloat(CESetObj& obj, LPCWSTR key, float& value)
{
    double exchanged = value;
    obj.Item(key, exchanged);
    const float read = static_cast<float>(exchanged);
    if (std::isfinite(read))
        value = read;
}

/** The image with 24 bits per pixel: itself, or a copy in `copy`; null if there is no room for one. */
CImage* WithoutPalette(CImage& image, CImage& copy)
{
    constexpr int depth = 24;
    if (image.GetBPP() == depth && image.IsDIBSection())
        return &image;
    if (!copy.Create(image.GetWidth(), image.GetHeight(), depth))
        return nullptr;
    const BOOL copied = image.BitBlt(copy.GetDC(), 0, 0);
    copy.ReleaseDC();
    ::GdiFlush(); // drawing is queued, and the pixels are read next
    return copied ? &copy : nullptr;
}

} // namespace

CDspMtrl::CDspMtrl()
    : name(L"Default")
{
}

CDspMtrl::CDspMtrl(const CString& mtrlName, double ambientR, double ambientG, double ambientB,
                   double ambientA, double diffuseR, double diffuseG, double diffuseB, double diffuseA,
                   double specularR, double specularG, double specularB, double specularA, double shine)
    : name(mtrlName)
    , ambient(static_cast<float>(ambientR), static_cast<float>(ambientG), static_cast<float>(ambientB),
              static_cast<float>(ambientA))
    , diffuse(static_cast<float>(diffuseR), static_cast<float>(diffuseG), static_cast<float>(diffuseB),
              static_cast<float>(diffuseA))
    , specular(static_cast<float>(specularR), static_cast<float>(specularG), static_cast<float>(specularB),
               static_cast<float>(specularA))
    , shininess(static_cast<float>(shine))
{
}

CDspMtrl::~CDspMtrl() = default;

CDspMtrl::CDspMtrl(const CDspMtrl&) = default;

CDspMtrl& CDspMtrl::operator=(const CDspMtrl&) = default;

void CDspMtrl::Settings(CESetObj& obj)
{
    const CString before = texName;
    int isDblSided = dblSided != 0;
    obj.Item(L"MatName", name);
    ExchangeFloat(obj, L"Shininess", shininess);
    ExchangeFloat(obj, L"Transparency", transparency);
    obj.Item(L"DblSided", isDblSided);
    obj.Item(L"TexName", texName);
    ExchangeColour(obj, L"Ambient", ambient);
    ExchangeColour(obj, L"Diffuse", diffuse);
    ExchangeColour(obj, L"Specular", specular);
    if (obj.IsStoring())
        return;
    dblSided = isDblSided != 0;
    if (texName != before) {
        m_owned.reset();
        texture = 0;
    }
}

void CDspMtrl::SetMtrl()
{
    if (m_owned && !m_owned->Exists()) { // it went with the contexts that had it
        m_owned.reset();
        texture = 0;
    }
    if (!texture && !texName.IsEmpty() && texName != m_failed && !Load(texName))
        m_failed = texName;
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, &ambient.red);
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, &diffuse.red);
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, &specular.red);
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, shininess);
    if (texture)
        Bind();
}

void CDspMtrl::Bind()
{
    glBindTexture(GL_TEXTURE_2D, texture);
}

int CDspMtrl::Load(const CString& file)
{
    CImage loaded;
    if (FAILED(loaded.Load(file)))
        return 0;
    const int width = loaded.GetWidth();
    const int height = loaded.GetHeight();
    if (!GL().acceptsTexture(width, height)) {
        Vant::Alarm(10, 1,
                    L"DspMdl: BMP Texture File: %s is too large, or texture dimensions are not a Power of 2",
                    static_cast<LPCWSTR>(file));
        return 0;
    }
    CImage copy;
    CImage* const image = WithoutPalette(loaded, copy);
    if (!image)
        return 0;
    // OpenGL is told of red first and of rows without padding, the lowest first, which no bitmap has.
    const std::vector<unsigned char> pixels =
        PackRgb(static_cast<const unsigned char*>(image->GetBits()), image->GetPitch(), width, height);

    m_owned.reset();
    DeleteReleasedNames();
    m_failed.Empty();
    texture = GL().newTexture();
    if (texture)
        m_owned = std::make_shared<GLName>(GLName::Kind::texture, texture);
    else
        Vant::Alarm(20, 1, L"Model Load: Cannot load texture for model %s", static_cast<LPCWSTR>(file));
    Bind();
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    glPixelStorei(GL_UNPACK_SKIP_ROWS, 0);
    glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0);
    glTexImage2D(GL_TEXTURE_2D, 0, channels, width, height, 0, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    return 1;
}
