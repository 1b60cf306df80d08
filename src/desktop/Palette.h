#pragma once

#include <QColor>

/// The colours of the cash desk. Text on its ground has a contrast of 4.5 to 1 or more.
namespace desktop::palette {

inline constexpr QColor kGround{0xe9, 0xed, 0xef};
inline constexpr QColor kPanel{0xff, 0xff, 0xff};
inline constexpr QColor kPanelBorder{0xd7, 0xdd, 0xe0};
inline constexpr QColor kHairline{0xe6, 0xea, 0xec};
/// Footers of dialogs and headers of grids.
inline constexpr QColor kBand{0xf4, 0xf6, 0xf7};

inline constexpr QColor kAccent{0x0b, 0x6b, 0x5d};
inline constexpr QColor kAccentHover{0x09, 0x5c, 0x50};
inline constexpr QColor kAccentPressed{0x07, 0x4a, 0x40};
/// Ground of what is selected, hovered or in a good state.
inline constexpr QColor kPale{0xe3, 0xf1, 0xee};
inline constexpr QColor kOuterRing{0xc3, 0xe2, 0xdc};
/// The panel of the amount that matters now.
inline constexpr QColor kDeep{0x0f, 0x2f, 0x2a};
inline constexpr QColor kOnDeepQuiet{0xb9, 0xd3, 0xcd};

inline constexpr QColor kText{0x1b, 0x26, 0x2a};
inline constexpr QColor kLabel{0x49, 0x49, 0x49};
/// Explanations, and lines that are not the counter's own.
inline constexpr QColor kQuietText{0x5a, 0x66, 0x6b};
/// Words of what is out of action.
inline constexpr QColor kPaleText{0x97, 0xa2, 0xa7};

inline constexpr QColor kFieldBorder{0xc3, 0xcc, 0xd0};
inline constexpr QColor kLockedField{0xf9, 0xf9, 0xf9};
inline constexpr QColor kHover{0xf1, 0xf5, 0xf5};
inline constexpr QColor kPressed{0xe3, 0xe9, 0xea};
inline constexpr QColor kRefused{0xff, 0x00, 0x00};
inline constexpr QColor kStop{0xb4, 0x23, 0x18};
inline constexpr QColor kQuestion{0x1d, 0x4e, 0x89};

/// What lies over a darkened window.
inline constexpr QColor kDim{0x1e, 0x2d, 0x32, 0xa8};

}  // namespace desktop::palette
