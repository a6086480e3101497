#pragma once

#include "demo/detail/FramePace.h"
#include "demo/detail/TourPlan.h"
#include "demo/script/CActor.h"
#include "demo/tour/CTourFilm.h"
#include "demo/tour/TourCues.h"

#include <vector>

namespace demo
{

/** The program shows itself for a minute: plays the tour's cues by the clock, films what is seen, and checks
 *  that what it shows really happened. Every part of it, and every promise that was kept or not, is reported
 *  in a line on the standard output. */
class CTour : public CActor
{
public:
    explicit CTour(const Stage& stage);

    bool Step(double t) override;
    bool IsDone() const override { return m_done; }

private:
    void Begin(double t);
    void Film(double t);
    void PlayCues(double t);
    void CheckPromises();
    void TakePicture(const wchar_t* name);
    void End();
    Box Shot(double t) const;
    static void Report(const std::wstring& line);

    Stage m_stage;
    CTourHand m_hand;
    CTourFilm m_film;
    FramePace m_pace{CTourFilm::rate, tourLength};
    Box m_whole;
    Box m_from; // the picture was there before, and is there now
    Box m_to;
    double m_turned = 0.0; // when it began to go there
    double m_start = -1.0; // of the tour, on the caller's clock
    std::size_t m_next = 0;
    std::size_t m_told = 0; // parts that were reported
    std::vector<const TourCue*> m_promises;
    bool m_filming = false;
    bool m_done = false;
};

} // namespace demo
