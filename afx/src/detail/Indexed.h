#pragma once

class CImage;

namespace vafx::detail
{

/** Makes @p indexed an image of 8 bits per pixel from one of 24 or 32: exact for up to 256 colours, else with
 *  each colour moved to the nearest of an even cube. @return false when it could not be made. */
bool MakeIndexed(const CImage& image, CImage& indexed);

} // namespace vafx::detail
