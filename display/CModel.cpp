#include "display/CModel.h"

#include "display/detail/GLName.h"
#include "display/detail/Read3ds.h"
#include "display/detail/TextureFile.h"
#include "platform/Vant.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <span>
#include <string>

using namespace vant::detail;

namespace
{

constexpr int alarmLevel = 1;

void AlarmUnable(unsigned long id, const CString& path, const CString& cause)
{
    Vant::Alarm(id, alarmLevel, L"Model Read: Unable to load %s, cause=%s", static_cast<LPCWSTR>(path),
                static_cast<LPCWSTR>(cause));
}

/** Reads a file into a model. Throws CFileException*. */
ModelResult ReadModel(CFile& file, ModelData& model)
{
    // The first chunk's header tells whether the rest is worth its memory.
    constexpr UINT headerSize = 6;
    std::byte header[headerSize];
    const UINT headerRead = file.Read(header, headerSize);
    if (Read3ds(std::span(header, headerRead), model) == ModelResult::NotAThreeDs)
        return ModelResult::NotAThreeDs;

    // Lengths are 32 bits wide in the format: nothing behind belongs to the model.
    constexpr ULONGLONG most = std::numeric_limits<std::uint32_t>::max();
    const auto size = static_cast<UINT>(std::min(file.GetLength(), most));
    const auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
    file.SeekToBegin();
    const UINT read = file.Read(bytes.get(), size);
    return Read3ds(std::span(bytes.get(), read), model);
}

/** The path up to its last separator, which is a backslash then; empty without one. */
CString DirOf(CString path)
{
    path.Replace(L'/', L'\\');
    return path.Left(path.ReverseFind(L'\\') + 1);
}

/** The names of the files in a directory, the current one for an empty name. */
std::vector<std::wstring> FilesIn(const CString& dir)
{
    std::vector<std::wstring> files;
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(dir + L"*", &found);
    if (search == INVALID_HANDLE_VALUE)
        return files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            files.emplace_back(found.cFileName);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return files;
}

CString FromBytes(const std::string& text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

CRgbf FromColour(const ColourData& colour)
{
    return {colour.red, colour.green, colour.blue};
}

/** Where a texture is; where it should be, if it is not there. */
CString TexturePath(const std::string& texture, const CString& dir, std::span<const std::wstring> files)
{
    CString wanted = FromBytes(texture);
    if (const std::wstring* const found =
            FindTextureFile({wanted.GetString(), static_cast<std::size_t>(wanted.GetLength())}, files))
        return dir + found->c_str();
    Vant::NamePart(wanted, wanted);
    return dir + wanted;
}

template <class Count>
int SumOver(const std::vector<MeshData>& meshes, Count count)
{
    std::size_t sum = 0;
    for (const MeshData& mesh : meshes)
        sum += count(mesh);
    return static_cast<int>(std::min<std::size_t>(sum, std::numeric_limits<int>::max()));
}

const std::shared_ptr<const ModelData>& NoData()
{
    static const auto none = std::make_shared<const ModelData>();
    return none;
}

} // namespace

CModel::CModel()
    : m_data(NoData())
{
}

CModel::CModel(const CModel& other)
    : mtrls(other.mtrls)
    , file(other.file)
    , dir(other.dir)
    , name(other.name)
    , m_data(other.m_data)
{
}

CModel& CModel::operator=(const CModel& other)
{
    if (this == &other)
        return *this;
    mtrls = other.mtrls;
    file = other.file;
    dir = other.dir;
    name = other.name;
    m_data = other.m_data;
    m_list.reset();
    return *this;
}

CModel::~CModel() = default;

void CModel::Clear()
{
    m_list.reset();
    m_data = NoData();
    mtrls.SetSize(0);
}

int CModel::Read3DS(const CString& path)
{
    Clear();
    if (path.IsEmpty() || path == L"None")
        return 0;
    file = path; // used from here on: the caller's may be one of the names here
    dir = DirOf(file);
    Vant::NamePart(file, name);

    ModelData model;
    ModelResult result = ModelResult::NotAThreeDs;
    int failure = CFileException::none;
    CFile opened;
    CFileException cause;
    if (!opened.Open(file, CFile::modeRead | CFile::shareDenyWrite | CFile::osSequentialScan, &cause)) {
        failure = cause.m_cause;
    } else {
        try {
            result = ReadModel(opened, model);
        } catch (CFileException* thrown) {
            failure = thrown->m_cause;
            thrown->Delete();
        }
    }
    if (failure != CFileException::none) {
        AlarmUnable(50, file, Vant::FileExceptionStr(failure));
        return 0;
    }
    if (result == ModelResult::NotAThreeDs) {
        AlarmUnable(60, file, L"Not in 3DS format");
        return 0;
    }
    TakeMtrls(model.materials);
    m_data = std::make_shared<const ModelData>(std::move(model));
    return 1;
}

void CModel::TakeMtrls(const std::vector<MaterialData>& materials)
{
    const bool hasTexture = std::any_of(materials.begin(), materials.end(),
                                        [](const auto& from) { return !from.texture.empty(); });
    const std::vector<std::wstring> files = hasTexture ? FilesIn(dir) : std::vector<std::wstring>();
    mtrls.SetSize(static_cast<unsigned>(materials.size()));
    for (unsigned i = 0; i < mtrls.GetSize(); ++i) {
        const MaterialData& from = materials[i];
        CDspMtrl& mtrl = *mtrls.GetAt(i);
        mtrl.name = FromBytes(from.name);
        mtrl.ambient = FromColour(from.ambient);
        mtrl.diffuse = FromColour(from.diffuse);
        mtrl.specular = FromColour(from.specular);
        mtrl.transparency = from.transparency;
        mtrl.dblSided = from.twoSided;
        if (!from.texture.empty())
            mtrl.texName = TexturePath(from.texture, dir, files);
    }
}

void CModel::ReadDXF(const CString&) {}

void CModel::MtrlsChanged() noexcept
{
    m_list.reset();
}

int CModel::GetMeshCount() const noexcept
{
    return static_cast<int>(m_data->meshes.size());
}

CString CModel::GetMeshName(int mesh) const
{
    if (mesh < 0 || mesh >= GetMeshCount())
        return {};
    return FromBytes(m_data->meshes[static_cast<std::size_t>(mesh)].name);
}

int CModel::GetVertexCount() const noexcept
{
    return SumOver(m_data->meshes, [](const MeshData& mesh) { return mesh.vertices.size(); });
}

int CModel::GetFaceCount() const noexcept
{
    return SumOver(m_data->meshes, [](const MeshData& mesh) { return mesh.faces.size(); });
}

int CModel::GetExtents(CV3& lower, CV3& upper) const
{
    constexpr double none = std::numeric_limits<double>::infinity();
    CV3 least(none, none, none);
    CV3 most(-none, -none, -none);
    for (const MeshData& mesh : m_data->meshes) {
        for (const Point3& at : mesh.vertices) {
            least = {std::min(least.x, at.x), std::min(least.y, at.y), std::min(least.z, at.z)};
            most = {std::max(most.x, at.x), std::max(most.y, at.y), std::max(most.z, at.z)};
        }
    }
    if (least.x > most.x)
        return 0;
    lower = least;
    upper = most;
    return 1;
}
