#include "settings/CESet.h"

#include "core/detail/FileHandle.h"
#include "core/detail/TextView.h"
#include "settings/detail/AtomicFile.h"
#include "settings/detail/CodePage.h"
#include "settings/detail/SetWriter.h"
#include "settings/detail/TreeBuilder.h"

#include <ctime>
#include <cwchar>
#include <exception>
#include <iterator>
#include <string_view>

namespace
{

using vant::detail::AtomicFile;
using vant::detail::FileHandle;
using vant::detail::LineCutter;
using vant::detail::SetWriter;
using vant::detail::TreeBuilder;
using vant::detail::View;

/** The present local date and time in the locale's long form. */
std::wstring_view Now(wchar_t (&text)[128]) noexcept
{
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    if (localtime_s(&local, &now) != 0)
        return {};
    return {text, std::wcsftime(text, std::size(text), L"%#c", &local)};
}

template <class Writer>
void WriteObject(Writer& writer, const CESetObj& object)
{
    writer.BeginObject(View(object.m_name), View(object.m_type));
    for (CVantPtr* pos = object.GetHeadPos(); pos != nullptr;) {
        if (const CESetItm* const item = object.GetNext(pos))
            writer.Item(View(item->m_name), View(item->m_value));
    }
    for (CVantPtr* pos = object.m_data.GetHeadPos(); pos != nullptr;) {
        if (const CString* const line = object.m_data.GetNext(pos))
            writer.Data(View(*line));
    }
    writer.EndObject();
}

template <class Writer>
void WriteTree(Writer& writer, const CESet& set)
{
    wchar_t date[128];
    writer.Begin(Now(date));
    for (CVantPtr* colPos = set.GetHeadPos(); colPos != nullptr;) {
        const CESetCol* const collection = set.GetNext(colPos);
        if (collection == nullptr)
            continue;
        writer.BeginCollection(View(collection->m_name));
        for (CVantPtr* objPos = collection->GetHeadPos(); objPos != nullptr;) {
            if (const CESetObj* const object = collection->GetNext(objPos))
                WriteObject(writer, *object);
        }
        writer.EndCollection();
    }
    writer.End();
}

bool ReadTree(HANDLE file, CESet& set)
{
    TreeBuilder builder(set);
    LineCutter cutter;
    DWORD count = 0;
    do {
        if (!ReadFile(file, cutter.Room(), static_cast<DWORD>(cutter.RoomSize()), &count, nullptr))
            return GetLastError() == ERROR_BROKEN_PIPE; // how a pipe ends
        cutter.Put(count, [&](std::string_view line) { builder.Add(line); });
    } while (count != 0);
    return true;
}

/** Exhausted memory is the only cause of an exception here; none may leave the library. */
template <class Action>
int Guarded(Action action) noexcept
{
    try {
        return action() ? 1 : 0;
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::exception&) {
        return 0;
    }
    return 0;
}

} // namespace

int CESet::Save(CString file) const
{
    return Guarded([&] {
        AtomicFile target(file.GetString());
        if (!target.Open())
            return false;
        const auto drain = [&](const char* bytes, std::size_t count) { target.Write(bytes, count); };
        SetWriter<wchar_t, decltype(&vant::detail::EncodeAcp), decltype(drain)> writer(
            &vant::detail::EncodeAcp, drain);
        WriteTree(writer, *this);
        return target.Commit();
    });
}

int CESet::Load(CString file)
{
    return Guarded([&] {
        const FileHandle source(CreateFileW(file, GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                            OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
        if (!source.IsOpen())
            return false;
        CESet loaded(m_storing);
        if (!ReadTree(source.Get(), loaded))
            return false;
        TakeAll(loaded);
        return true;
    });
}
