#pragma once

#include "demo/model/Shapes.h"

#include <string>

/** @file
 *  The demonstration's boat: a survey catamaran of 14 m. It heads along y with starboard along x; the water
 *  line is at z = 0, the middle of the boat above the origin. Lengths are metres. */

namespace demo::model
{

/** Its hulls, deckhouse and gear, with their materials. */
vant::detail::ModelData SurveyBoat();

/** Names of the textures, beside the model. */
inline constexpr const char* hullPictureName = "hull.bmp";
inline constexpr const char* deckPictureName = "deck.bmp";

/** @name The textures as files: bitmaps of 24 bits, their sides powers of two @{ */
std::string HullPicture(); ///< a side of the boat with its name, the bow at the right
std::string DeckPicture(); ///< the whole deck seen from above, the bow at the top
/** @} */

/** @name The parts @{ */
MeshData Hulls();     ///< mapped to the hull's picture
MeshData Decks();     ///< mapped to the deck's picture
MeshData Platform();  ///< what joins the hulls
MeshData Deckhouse(); ///< with its windows and what is seen through them
MeshData Roof();      ///< with what stands on it, up to the top of the mast
MeshData Rails();
MeshData SternGear(); ///< frame, winch and engines
MeshData Sounder();   ///< on its pole at the starboard side
/** @} */

/** @name Measures that the parts share @{ */
inline constexpr double hullPlace = 2.25; ///< middle of a hull beside that of the boat
inline constexpr double sternPlace = -7.0;
inline constexpr double bowPlace = 7.0;
inline constexpr double deckHeight = 1.5;
/** Height of the deck's edge, and half of a hull's breadth there. @param along  0 stern .. 1 bow */
double SheerHeight(double along);
double SheerBreadth(double along);
/** Where that is. */
double SheerPlace(double along);
/** @} */

} // namespace demo::model
