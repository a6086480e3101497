#include "demo/model/SurveyBoat.h"

#include "tests/display/MeshParts.h"

namespace demo::model
{
namespace
{

using vant::detail::MaterialData;

MaterialData Shiny(const char* name, float red, float green, float blue, float highlight)
{
    MaterialData material = support::Matt(name, red, green, blue);
    material.specular = {highlight, highlight, highlight};
    return material;
}

MaterialData Textured(const char* name, const char* picture, float highlight)
{
    MaterialData material = Shiny(name, 1, 1, 1, highlight);
    material.texture = picture;
    return material;
}

} // namespace

vant::detail::ModelData SurveyBoat()
{
    vant::detail::ModelData model;
    model.meshes = {Hulls(), Decks(), Platform(), Deckhouse(), Roof(), Rails(), SternGear(), Sounder()};
    model.materials = {
        Textured("Hull paint", hullPictureName, 0.35F), Textured("Deck", deckPictureName, 0),
        Shiny("Antifouling", 0.50F, 0.11F, 0.08F, 0),   Shiny("Stripe", 0.93F, 0.94F, 0.95F, 0.2F),
        Shiny("Transom", 0.09F, 0.20F, 0.39F, 0.3F),    Shiny("White paint", 0.93F, 0.94F, 0.95F, 0.25F),
        Shiny("Steel", 0.70F, 0.73F, 0.77F, 0.7F),      Shiny("Signal orange", 0.96F, 0.45F, 0.06F, 0.3F),
        Shiny("Rubber", 0.10F, 0.10F, 0.12F, 0.1F),     Shiny("Furniture", 0.36F, 0.28F, 0.22F, 0),
        Shiny("Screen", 0.25F, 0.62F, 0.95F, 0),        Shiny("Solar cells", 0.06F, 0.10F, 0.24F, 0.5F),
        Shiny("Port light", 0.95F, 0.10F, 0.08F, 0.4F), Shiny("Starboard light", 0.05F, 0.80F, 0.25F, 0.4F),
    };
    MaterialData glass = Shiny("Glass", 0.10F, 0.24F, 0.34F, 0.9F);
    glass.transparency = 0.45F;
    glass.twoSided = true;
    model.materials.push_back(glass);
    return model;
}

} // namespace demo::model
