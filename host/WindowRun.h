#pragma once
/// A run of the program with a window, from the application's start to the end of its event loop, or the
/// picture of such a window.

#include <string>

#include "host/Navigator.h"
#include "host/Options.h"
#include "vapp/app/TApp.h"

namespace navigator {

/// Failure of anything but the command line and the folders.
inline constexpr int cnFailureStatus = 1;

/// Says on the standard error stream what failed, and gives the status back.
int gFail(const std::string& sentence, int status);

/// Opens the folders that were named, or else the sample. Gives the exit status, and says itself what
/// failed.
int gOpenFolders(Navigator& navigator, const Options& options, const TApp& app);

/// Makes the window and runs the script. Gives the exit status, and says itself what failed.
int gPrepareWindow(Navigator& navigator, const Options& options);

/// The whole run. Gives the exit status.
int gRunWindow(Options options, int argc, char** argv);

/// Writes the picture that the options name: it depends neither on the desktop that happens to be there nor
/// on anybody's settings. Gives the exit status.
int gTakePicture(const Options& options, int argc, char** argv);

}  // namespace navigator
