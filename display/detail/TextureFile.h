#pragma once

#include <span>
#include <string>
#include <string_view>

namespace vant::detail
{

/** Finds the file that a model means by a texture's name among the files beside the model.
 *
 *  Any directory in the name is that of the machine where the model was made, and does not count. Then the
 *  first file counts that fits best: of exactly that name; of that name whatever the case; and for a name of
 *  the form 8.3, which is what old models hold, a file whose name was cut to it ("HULLPLAT.TIF" means
 *  "hullplates.tiff").
 *
 *  @param name   as the model gives it
 *  @param files  names of files, without directories
 *  @return the entry of `files`, or null when none fits or the name is empty */
const std::wstring* FindTextureFile(std::wstring_view name, std::span<const std::wstring> files);

} // namespace vant::detail
