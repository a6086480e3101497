#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "geo/CRtV3.h"
#include "geo/CSpline.h"

#include <afx.h>

#include <memory>

class CDsp;
class CV3;

namespace vant::detail
{
struct RouteIndex;
} // namespace vant::detail

/** A route: a line through nodes in space, and what is found along it.
 *
 *  **Positions.** A position is a distance from the first node: q as seen from above, p in space. Recalc()
 * works them out for every node, with the direction of every segment; call it after every change of the nodes
 * or of their coordinates. Looking up a position that moves takes the same short time however many nodes
 * there are, and so does jumping about on a route with evenly spaced nodes; in the worst case that is a
 * search by halves. The lookups remember for that what Recalc() has prepared, about 35 bytes a node, and
 * En2P() about 25 more once it is called.
 *
 *  Nodes that are added or removed without Recalc() have whatever p and q they hold; the next lookup then
 * prepares itself anew, which takes as long as Recalc(). Only a change through a reference to the base list
 * stays unnoticed: there, Recalc() must come before the next lookup.
 *
 *  **Between nodes** everything is linear, and angles go the shorter way round. What is off the route gives
 * its nearer end. Where nodes lie one upon the other (as seen from above, for q) the last of them counts.
 *
 *  **What cannot be.** A segment whose length is not a number counts as going nowhere, so that the rest of
 * the route stays usable. Lookups of what is not a number, and on a route without nodes, find nothing.
 *
 *  Lengths are metres in display coordinates, angles radians. UI thread only, also for lookups. */
class VANT_API CRoute : public CLstMgd<CRtV3>
{
public:
    CRoute();
    /** Name and nodes; deep. */
    CRoute(const CRoute& other);
    CRoute& operator=(const CRoute& other);
    ~CRoute() override;

    CString name; ///< what routes are ordered by

    /** Orders by name, whatever its case; names that differ in case only by their characters. */
    int operator<(const CRoute& other) const;

    /** Works out p, q, heading and pitch of every node. The first one keeps its p and q: from there it is
     * counted. The last one takes the direction of the segment that leads to it. */
    void Recalc();

    /** @name Routes made of this one
     *  They replace nodes and name of `out`, which may be this route itself. p, q, heading and pitch of the
     * new nodes are those of the place on this route, or 0; for lookups call Recalc() on the output.
     *  @return the number of nodes made @{ */
    /** A smooth route, "<name>_spline": for each segment one node for each row of the table. Deliberately
     * there is one segment more than between the nodes: an open route ends with the rows of one that begins
     * and ends at its last node, and a closed one goes over its first segment a second time. Empty for less
     * than two nodes.
     *  @param closed  non-zero: the last node is joined to the first */
    int SplineRt(CRoute& out, const CSpline& spline, int closed) const;
    /** A route beside this one, "<name>_<offset>" with the offset's sign: this one at from, from + step, ...
     * below `to`, and at `to` in any case, each moved by offset times the place's scale. z stays.
     *  @param from,to  q  @param step  0 or less gives the ends only, and so does one so small that it would
     * make more than maxSamples nodes
     *  @param angle  from the heading, clockwise: pi/2 moves to the right, and a negative offset to the left
     *  @return 0 for a route without nodes and numbers that are not finite */
    int OffsetReSF(CRoute& out, double from, double to, double step, double offset, double angle) const;
    /** The parallel of this route, "<name>_<offset>": its own nodes between from and to, each moved to where
     * the parallels of its two segments meet, and the ends moved as the segments there lie. A corner sharper
     * than 120 degrees is cut: it gives two nodes. On the inside of a bend that is narrower than the offset
     * the parallel crosses itself.
     *  @param from,to  q; where from is not less, only the place at `to` is there  @param angle  as above,
     * but of an offset along the route the corners take nothing
     *  @return 0 likewise */
    int OffsetRtCP(CRoute& out, double from, double to, double offset, double angle) const;
    /** A straight line across this route, "<name>_X@<q>": two nodes, at the distances `from` and `to` from
     * the place at q. The scale takes no part.
     *  @param from,to  metres  @param angle  of the line, from the direction of the segment, clockwise: pi/2
     * measures from and to to the right, where less than 0 is to the left
     *  @return 0 likewise */
    int XLine(CRoute& out, double q, double from, double to, double angle) const;
    enum : int { maxSamples = 10'000'000 };
    /** @} */

    /** @name Lookups */
    ///@{
    /** The place at a distance as seen from above (Q2Entry) or in space (P2Entry).
     *  @return non-zero if it is on the route; 0 if not, and then `out` is the nearer end, or what it was for
     * a route without nodes and for what is not a number @{ */
    int Q2Entry(double q, CRtV3& out) const;
    int P2Entry(double p, CRtV3& out) const;
    /** @} */
    /** The place between two nodes at a distance; beyond them, the nearer one. The application's numbers are
     * those of the first node, and at the second one those of the second. @{ */
    static CRtV3 InterpQ(double q, const CRtV3& a, const CRtV3& b);
    static CRtV3 InterpP(double p, const CRtV3& a, const CRtV3& b);
    /** @} */
    /** The place of the route that is nearest to a point as seen from above; the first one, if there are
     * several.
     *  @param[out] a,b  the nodes before and after it, which stay the route's; the same for a route of one
     * node, null for one without and for a point that is not a number
     *  @return its p; 0 where a and b are null */
    double En2P(double east, double north, CRtV3*& a, CRtV3*& b) const;
    /** That place itself; a default node where there is none. */
    CRtV3 En2Entry(double east, double north) const;
    /** The same for a vector, as seen from above. */
    CRtV3 V2Entry(const CV3& pt) const;
    /** A copy of the node at a position of the list; a default node for null. */
    CRtV3 Node(CVantPtr* pos) const;
    /** @} */

    /** @name Drawing, while a view draws its scene
     *  In the current colour; whatever cannot be told apart in the view is drawn once. Exact also millions of
     * metres from zero. @{ */
    /** As a line of the current width, without light. */
    void DwLineRt(CDsp& dsp) const;
    /** As a band, level from side to side, with the light that is on. @param width  metres */
    void DwSolidRt(CDsp& dsp, double width) const;
    /** Draws the route's markers. Nothing here: which nodes are marked, and how, is the application's, which
     * replaces this in a class of its own and calls DwMrkr() or draws its own symbols there. */
    virtual void DwMrkrs(CDsp& dsp);
    /** Draws one marker, a diamond that faces the eye, without light. @param size  units of 1/96 inch,
     * however far the view zooms */
    static void DwMrkr(CDsp& dsp, const CRtV3& at, double size = 10);
    /** @} */

    /** @name Changing the list of nodes
     *  Each does what it does in the list (CLstMgd), and ends what the lookups remember. @{ */
    CLstMgd& operator=(const CLstMgd& nodes) { return Changing() = nodes; }
    CLstMgd& operator=(const CLstPtr<CRtV3*>& nodes) { return Changing() = nodes; }
    CVantPtr* AddHead(const CRtV3* node) { return Changing().AddHead(node); }
    CVantPtr* AddTail(const CRtV3* node) { return Changing().AddTail(node); }
    CVantPtr* InsertBefore(CVantPtr* pos, const CRtV3* node) { return Changing().InsertBefore(pos, node); }
    CVantPtr* InsertAfter(CVantPtr* pos, const CRtV3* node) { return Changing().InsertAfter(pos, node); }
    void SetAt(CVantPtr* pos, const CRtV3* node) { Changing().SetAt(pos, node); }
    void RemoveHead() { Changing().RemoveHead(); }
    void RemoveTail() { Changing().RemoveTail(); }
    void RemoveAt(CVantPtr* pos) { Changing().RemoveAt(pos); }
    void RemoveBefore(CVantPtr* pos) { Changing().RemoveBefore(pos); }
    void RemoveAfter(CVantPtr* pos) { Changing().RemoveAfter(pos); }
    void Remove(CRtV3* node) { Changing().Remove(node); }
    void RemoveAll() { Changing().RemoveAll(); }
    void SetSize(unsigned count) { Changing().SetSize(count); }
    void Grow(int count) { Changing().Grow(count); }
    void Swap(CVantPtr* a, CVantPtr* b) { Changing().Swap(a, b); }
    void ShiftUp(CVantPtr* pos) { Changing().ShiftUp(pos); }
    void ShiftDn(CVantPtr* pos) { Changing().ShiftDn(pos); }
    void ShiftToHead(CVantPtr* pos) { Changing().ShiftToHead(pos); }
    void ShiftToTail(CVantPtr* pos) { Changing().ShiftToTail(pos); }
    /** @} */

private:
    CLstMgd& Changing()
    {
        if (m_index)
            Forget();
        return *this;
    }
    void Forget();
    vant::detail::RouteIndex* Index() const;
    std::size_t SegmentAt(double q) const;
    bool Nearest(double east, double north, CRtV3*& a, CRtV3*& b, double& share) const;
    int Begin(CRoute& out, LPCWSTR format, double number) const;
    void AddMoved(const CRtV3& node, double heading, double distance, double angle);
    void AddBeside(const CRtV3& node, double before, double after, double distance, double angle);

    // Null: to be prepared. It has the walk's two nodes too: those around the place of the last lookup.
    mutable std::unique_ptr<vant::detail::RouteIndex> m_index;
};
