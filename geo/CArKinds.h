#pragma once

#include "geo/CArea.h"

/** @file
 *  The kinds of areas: types of their own with the members and the placeholders of CArea, so that an area's
 * class tells what it is.
 *
 *  What the numbers of CArea::par stand for in each kind is a convention, so that applications understand one
 * another's areas; the library does not read them. Lengths are metres, angles bearings in radians. */

/** A rectangle whose sides run north and east: par 0..3 are its west, south, east and north edges. */
class VANT_API CArNRect : public CArea
{
public:
    CArNRect();
    CArNRect(const CArNRect& other);
    CArNRect& operator=(const CArNRect& other);
    ~CArNRect() override;
};

/** A rectangle at an angle: par 0 and 1 are its centre's x and y, 2 its length along the bearing 4, and 3 its
 * width across. */
class VANT_API CArARect : public CArea
{
public:
    CArARect();
    CArARect(const CArARect& other);
    CArARect& operator=(const CArARect& other);
    ~CArARect() override;
};

/** A circle: par 0 and 1 are its centre's x and y, 2 its radius. */
class VANT_API CArCircle : public CArea
{
public:
    CArCircle();
    CArCircle(const CArCircle& other);
    CArCircle& operator=(const CArCircle& other);
    ~CArCircle() override;
};

/** A free polygon: its vertices, the last one joined to the first. */
class VANT_API CArFree : public CArea
{
public:
    CArFree();
    CArFree(const CArFree& other);
    CArFree& operator=(const CArFree& other);
    ~CArFree() override;
};

/** A corridor along a route: the vertices are the route's nodes, par 0 and 1 its width to the left and to the
 * right of them. */
class VANT_API CArRt : public CArea
{
public:
    CArRt();
    CArRt(const CArRt& other);
    CArRt& operator=(const CArRt& other);
    ~CArRt() override;
};

/** Tram lines, parallel lines to be followed: par 0 and 1 are the x and y of a point on the first one, 2
 * their bearing, 3 the distance from one to the next (to the right when positive), 4 their number. */
class VANT_API CArTram : public CArea
{
public:
    CArTram();
    CArTram(const CArTram& other);
    CArTram& operator=(const CArTram& other);
    ~CArTram() override;
};

/** The zone around a waypoint: par 0 and 1 are the waypoint's x and y, 2 the radius within which it counts as
 * reached. */
class VANT_API CArWy : public CArea
{
public:
    CArWy();
    CArWy(const CArWy& other);
    CArWy& operator=(const CArWy& other);
    ~CArWy() override;
};
