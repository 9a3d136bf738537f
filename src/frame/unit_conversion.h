// The small conversions that calculators share. The constants are the suite's own.
#pragma once

#include "frame/number.h"

namespace korvane {

inline Double MillimetersToInches(Single x) { return x / 25.4; }
inline Double KilogramsToPounds(Single x) { return x * 2.204622; }
inline Double PoundsToKilograms(Single x) { return x / 2.204622; }
inline Double FeetToMeters(Single x) { return x * 0.3048; }
inline Double LitersToGallons(Single x) { return x / 3.7852979; }
inline Double PsiToKilopascals(Single x) { return x * 6.8948; }
inline Double KilopascalsToPsi(Single x) { return x / 6.8948; }
inline Single TimesThousand(Single x) { return x * 1000; }
inline Double FahrenheitToCelsius(Single x) { return (x - 32) / 1.8; }
inline Double CelsiusToFahrenheit(Single x) { return x * 1.8 + 32; }
inline Double CubicMetersPerHourToGpm(Single x) { return x * 4.4033; }
inline Double CfmToCubicMetersPerHour(Single x) { return x * 1.699; }
inline Double CubicMetersPerHourToCfm(Single x) { return x / 1.699; }
inline Double KgPerCubicMeterToPoundsPerCubicFoot(Single x) { return x / 16.018; }
inline Double KilometersToMiles(Single x) { return x * 0.6214; }

}  // namespace korvane
