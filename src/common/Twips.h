#pragma once

// Form measures were kept in twips; 15 twips are one pixel at 96 dpi.
namespace Twips {
constexpr int PerPixel = 15;
constexpr int ToPixels(int twips)
{
    return twips / PerPixel;
}
constexpr int FromPixels(int pixels)
{
    return pixels * PerPixel;
}
} // namespace Twips
