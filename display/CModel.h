#pragma once

#include "core/CPtrAry.h"
#include "core/CV3.h"
#include "core/VantApi.h"
#include "display/CDspMtrl.h"

#include <afx.h>

#include <memory>
#include <vector>

class CDsp;

namespace vant::detail
{
class GLName;
struct MaterialData;
struct ModelData;
} // namespace vant::detail

/** A solid model of triangle meshes and materials, read from a 3D Studio (.3DS) file.
 *
 *  Any file can be read: what is damaged in it is left out. The chunks of the format are read by functions on
 * bytes (display/detail/Read3ds.h), without a file or a window.
 *
 *  Copies share the meshes, which never change; each has materials of its own, and is compiled into a display
 *  list of its own at its first drawing. A list that was let go is deleted at the next drawing of any 3D
 * window.
 *
 *  Models belong to the UI thread. */
class VANT_API CModel
{
public:
    /** A model without meshes. */
    CModel();
    CModel(const CModel& other);
    CModel& operator=(const CModel& other);
    ~CModel();

    /** By the file's path, upper and lower case being the same. */
    bool operator<(const CModel& other) const { return file.CompareNoCase(other.file) < 0; }

    CPtrAry<CDspMtrl> mtrls; ///< after a change of one call MtrlsChanged()
    CString file;            ///< path of the model's file, as it was given to Read3DS()
    /** The file's directory with its backslash, where its textures are; empty for a path without one. */
    CString dir;
    CString name; ///< at first the file's name without its directory

    /** Lets list, meshes and materials go. The names stay. */
    void Clear();

    /** Clears, then reads a 3D Studio file; "None" and an empty path only clear.
     *
     *  A material's transparency is the file's percentage / 100, or 1 where the file says 0: both 0 and 1 are
     * opaque. It is two-sided (CDspMtrl::dblSided) only where the file says so. A texture is looked for
     * beside the model whatever its case, also by the 8.3 form of its name, and loaded when it is first
     * drawn.
     *  @return 1; 0 without a file name, and after alarm 50, "Model Read: Unable to load <path>,
     * cause=<cause>", or 60, the same with the cause "Not in 3DS format" */
    int Read3DS(const CString& path);

    /** Does nothing, deliberately: the format has no reader. */
    void ReadDXF(const CString& path);

    /** Draws the model in the coordinates that are current, in the current context of a 3D window: lit by the
     * lights that are on, back faces left out unless the material is two-sided, textures multiplied with the
     * light. Smooth where the file's smoothing groups say so, or where edges are not sharp in a mesh without
     * them. What is transparent comes last and leaves the depths as they are. Faces without a material are
     * white and two-sided. OpenGL's settings are as before afterwards.
     *
     *  The first drawing loads the textures and compiles the list; every other one calls it. */
    void DrawModel(CDsp& dsp);

    /** Lets the list be compiled anew at the next drawing. */
    void MtrlsChanged() noexcept;

    /** How many meshes the model has. */
    int GetMeshCount() const noexcept;
    /** The name of a mesh, 0 .. GetMeshCount() - 1; empty for another number. */
    CString GetMeshName(int mesh) const;
    int GetVertexCount() const noexcept; ///< of all meshes
    int GetFaceCount() const noexcept;   ///< of all meshes
    /** Smallest and largest coordinates. @return 0, and the arguments stay, without any vertex */
    int GetExtents(CV3& lower, CV3& upper) const;

private:
    void TakeMtrls(const std::vector<vant::detail::MaterialData>& materials);

    std::shared_ptr<const vant::detail::ModelData> m_data;
    std::unique_ptr<const vant::detail::GLName> m_list; // null: not compiled
};
