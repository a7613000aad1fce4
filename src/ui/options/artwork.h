#pragma once

// The editor's own pictures, built into the program as Qt resources.
namespace kolta::artwork {

inline constexpr const char* Icon = ":/artwork/icon.png";      // 32x32: window icon, About window
inline constexpr const char* Banner = ":/artwork/image1.jpg";  // 400x100: main window, opens the user guide
inline constexpr const char* Scorecard = ":/artwork/image2.gif";  // 270x135: main window, opens the file formats

}  // namespace kolta::artwork
