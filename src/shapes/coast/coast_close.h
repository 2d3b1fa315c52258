// shapes/coast/coast_close.h - coastlines made into closed outlines.
#pragma once

/// Moves every point of the coastlines of Tab_WPoly onto the scale of its Cell and closes each
/// line, straight where its ends share a grid line, or by a walk clockwise round its frame
/// (coast_frame.h), so that the surface lies right of the line. Lines that shrink below 2 points
/// are left out. When a line cannot be closed (message 132), Tab_WPoly is empty.
void Coast_Close();
