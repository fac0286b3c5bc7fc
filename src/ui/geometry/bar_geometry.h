#pragma once

namespace tarvo::ui {

/// Width of the filled part of a bar `width` wide; a bar is never narrower than 4 points.
double capacityBarWidth(double width, double fraction);

/// Place of a temperature on its scale, 0 to 1; 0 on a scale without extent.
double temperatureFraction(double celsius, double scaleMin, double scaleMax);

/// Width of a temperature bar's filled part, never narrower than 4 points.
double temperatureBarWidth(double width, double celsius, double scaleMin, double scaleMax);

} // namespace tarvo::ui
