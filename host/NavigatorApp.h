#pragma once
/// The application object of the program: what the library's start asks of a host. The words of the command
/// line were read by gParseOptions; the framework is told the folders alone, so that no value of an option is
/// taken for a file.

#include "host/Options.h"
#include "vapp/app/TApp.h"

namespace navigator {

class NavigatorApp : public TApp {
public:
    /// The number under which the program puts its splash into the table of pictures.
    static constexpr unsigned cnSplashBitmap = 101;

    explicit NavigatorApp(const Options& options = {});

    unsigned GetSplashScreenBitmapID() override { return cnSplashBitmap; }
    unsigned GetSplashScreenVersionXLocation() override;
    unsigned GetSplashScreenVersionYLocation() override;
    unsigned long GetSplashScreenVersionColor() override;
    const char* GetVersionString() override;
    /// The same for every copy of the program, wherever it is installed: they share their settings.
    const char* GetApplicationName() override;
    unsigned long GetInstanceLimit() override { return m_limit; }

private:
    unsigned long m_limit;
};

}  // namespace navigator
