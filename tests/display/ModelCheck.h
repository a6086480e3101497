#pragma once

#include "display/detail/ModelData.h"

#include <string>
#include <string_view>

namespace support
{

/** What is wrong with a model that was read, its normals, the groups of its faces, or the model that is read
 *  from it when it is written; empty when everything holds that must hold whatever the file was. */
std::string FaultOf(const vant::detail::ModelData& model);

/** Reads a file's bytes. */
vant::detail::ModelData Read(std::string_view bytes);

/** Most bytes of memory that a model may take when it was read from a file of so many bytes. */
std::size_t MostMemory(std::size_t fileSize);

/** Bytes of memory that a model takes. */
std::size_t MemoryOf(const vant::detail::ModelData& model);

} // namespace support
