// ButtonPainters: one function for each style of a button.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonLook.h"

namespace controls {

/// The face is there already, or there is none.
inline void PaintNothing(Canvas&, const ButtonLook&) {}

// Edges.

/// A raised box of the days before visual styles; a toggle button that is on has a checkered face.
void PaintClassicStyle(Canvas& canvas, const ButtonLook& look);
/// The same box with a thin edge.
void PaintSoftStyle(Canvas& canvas, const ButtonLook& look);
/// Flat until the mouse comes.
void PaintHoverStyle(Canvas& canvas, const ButtonLook& look);

// Gradients in a direction of choice. Directions 6 and 7 are drawn as the diagonal.

void PaintGradientStyle(Canvas& canvas, const ButtonLook& look);
/// With round corners and a bevel. Its rows are as wide as the button, and their shades are rounded to nearest. With colours of its own
/// the far colour of a gradient stays the highlight colour when the button is hot.
void PaintRoundedStyle(Canvas& canvas, const ButtonLook& look);

// Frames of one pixel.

/// A dark frame round two that are raised or sunken.
void PaintRaised3DStyle(Canvas& canvas, const ButtonLook& look);
void PaintFlatStyle(Canvas& canvas, const ButtonLook& look);
/// Nearly invisible until the mouse comes.
void PaintFlatHotStyle(Canvas& canvas, const ButtonLook& look);
/// An etched frame round an inner field that changes its colour.
void PaintInsetStyle(Canvas& canvas, const ButtonLook& look);

// Layers of light and shade, fixed in their colours or made of the button's own.

/// Glass with a rim that turns blue.
void PaintGlossStyle(Canvas& canvas, const ButtonLook& look);
/// A light panel in a white border.
void PaintPanelStyle(Canvas& canvas, const ButtonLook& look);
/// Soft vertical gradients with rounded corners.
void PaintSoftRoundStyle(Canvas& canvas, const ButtonLook& look);
/// Cut corners, a face that darkens downwards, lines of light and shade along its edges.
void PaintShapedStyle(Canvas& canvas, const ButtonLook& look);
/// A coloured face in two frames. Always in its own colours, and never with a focus rectangle.
void PaintWarmStyle(Canvas& canvas, const ButtonLook& look);
/// Plain, and glowing orange under the mouse.
void PaintGlowStyle(Canvas& canvas, const ButtonLook& look);
/// Silver with a steel rim.
void PaintSilverStyle(Canvas& canvas, const ButtonLook& look);
/// A massive bevel with cut corners.
void PaintBevelStyle(Canvas& canvas, const ButtonLook& look);
/// Shades of the system's face and highlight colours only, so that it follows every colour scheme.
void PaintSystemShadeStyle(Canvas& canvas, const ButtonLook& look);

}  // namespace controls
