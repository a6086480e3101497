#pragma once

#include "controls/ControlsTest.h"
#include "gallery/Pose.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/** Controls in every state, drawn on sheets at several scales. With VANT_PICTURES naming a directory the
 * sheets are saved there as PNG files, to be looked at. */
class PicturesTest : public ControlsTest
{
protected:
    using Maker = std::function<std::unique_ptr<CECtrl>()>;

    struct Row {
        const char* what;
        Maker make;
        std::optional<bool> looks = true; ///< whether it differs with the mouse and the focus; none: somewhat
        bool captioned = true;            ///< whether it has a text
        Maker makeBlank = {}; ///< the same without text; for a text that emptying `text` does not take away
    };

    /** Checks that the states of each row can be told apart and that its text can be read, and saves all of
     * them as NAME-DPI.png. */
    void DrawSheet(const std::vector<Row>& rows, int dpi, const std::wstring& name);

private:
    std::vector<std::unique_ptr<Canvas>> DrawStates(CECtrl& ctrl, bool blank);
    void Check(const Row& row, int dpi, CECtrl& ctrl, const std::vector<std::unique_ptr<Canvas>>& drawn);
};
