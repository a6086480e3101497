#include "demo/tour/CTour.h"

#include "demo/detail/Shot.h"
#include "demo/detail/Text.h"
#include "demo/run/Terminal.h"
#include "demo/screen/ScreenPicture.h"
#include "demo/screen/ScreenPlace.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr double turnTime = 1.2;  // seconds in which the picture goes to another part of the screen
constexpr int closest = 800;      // pixels of the screen in the width of the film
constexpr int margin = 12;        // pixels around what is to be seen
constexpr double patience = 20.0; // seconds that a slow machine's hand may take beyond the film

} // namespace

CTour::CTour(const Stage& stage)
    : m_stage(stage)
{
    SetStage(m_stage);
    // The keyboard goes where the cues take it, not where the real mouse happens to be.
    CVantWnd::s_inhibitFocus = 1;
}

bool CTour::Step(double t)
{
    if (m_done)
        return true;
    if (m_start < 0.0)
        Begin(t);
    const double now = t - m_start;
    Film(now); // what was painted since the last step is complete now, whatever the cues change
    const bool isPlayed = m_next == TourCues().size() && m_promises.empty();
    if (now >= tourLength + (isPlayed ? 0.0 : patience)) {
        End();
        return true;
    }
    PlayCues(now);
    m_hand.Step(now);
    CheckPromises();
    return false;
}

void CTour::Begin(double t)
{
    m_start = t;
    m_whole = WholeStage(m_stage);
    m_from = m_to = m_whole;
    m_hand.Put({m_whole.left + m_whole.Width() * 0.62, m_whole.top + m_whole.Height() * 0.66});
    m_filming = m_film.Open(m_stage.session.outDir + filmName, m_whole);
    m_stage.session.failed |= !m_filming;
    m_stage.bridge.SetFocus();
}

void CTour::Film(double t)
{
    while (m_told < TourChapters().size() && TourChapters()[m_told].begin <= t) {
        const Chapter& chapter = TourChapters()[m_told++];
        Report(DurationText(chapter.begin) + L" of " + DurationText(tourLength) + L"  " + chapter.caption);
    }
    const int due = m_pace.Due(t);
    if (!m_filming || due == 0)
        return;
    const TourFrame frame{Shot(t), m_hand.At(), m_hand.SincePress(t), TourChapters()[ChapterAt(t)].caption,
                          std::min(t / tourLength, 1.0)};
    m_filming = m_film.Add(frame, due);
    m_pace.Note(m_filming ? due : 0);
    m_stage.session.failed |= !m_filming;
}

Box CTour::Shot(double t) const
{
    return Between(m_from, m_to, Eased((t - m_turned) / turnTime));
}

void CTour::PlayCues(double t)
{
    for (; m_next < TourCues().size() && TourCues()[m_next].at <= t; ++m_next) {
        const TourCue& cue = TourCues()[m_next];
        if (cue.begin && m_hand.IsBusy())
            return; // a slow machine's hand does one thing after the other, too
        if (cue.picture)
            TakePicture(cue.picture);
        if (cue.shows) {
            m_from = Shot(t);
            m_to = ShotOf(cue.shows(m_stage).Inset(-margin, -margin), m_whole, closest);
            m_turned = t;
        }
        if (cue.begin)
            cue.begin(m_stage, m_hand);
        if (cue.holds)
            m_promises.push_back(&cue);
    }
}

void CTour::CheckPromises()
{
    std::erase_if(m_promises, [this](const TourCue* cue) {
        const bool kept = cue->holds(m_stage);
        if (kept)
            Report(std::wstring(cue->promise) + L" ... ok");
        return kept;
    });
}

void CTour::TakePicture(const wchar_t* name)
{
    const bool saved = SaveScreen(RectOf(m_whole), m_stage.session.outDir + name);
    m_stage.session.picturesSaved &= saved;
    if (saved)
        m_stage.session.pictures.emplace_back(name);
}

void CTour::End()
{
    m_done = true;
    m_film.Close();
    CVantWnd::s_inhibitFocus = 0;
    CheckPromises();
    for (; m_next < TourCues().size(); ++m_next)
        if (TourCues()[m_next].promise)
            m_promises.push_back(&TourCues()[m_next]);
    for (const TourCue* const cue : m_promises)
        Report(std::wstring(cue->promise) + L" ... FAILED");
    if (m_filming)
        m_stage.session.pictures.emplace_back(filmName);
    Report(Counted(static_cast<std::size_t>(m_pace.Written()), L"frames in the film, ") +
           Counted(static_cast<std::size_t>(CTourFilm::rate), L"for each second"));
    m_stage.session.failed |= !m_promises.empty() || m_pace.Written() != m_pace.All();
}

void CTour::Report(const std::wstring& line)
{
    Say(L"tour: " + line); // the console keeps its lines for what happens on board
}

} // namespace demo
