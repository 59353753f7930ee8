#ifndef TOVUUTIL_FRAMEWORK_GUISERVICE_H
#define TOVUUTIL_FRAMEWORK_GUISERVICE_H

#include <string>

#include <tovuutil/framework/Service.h>

// Callbacks into the host's user interface, in the host's calling convention.
typedef int(TOVU_CALLBACK* MessageBoxCallback)(char const* text, char const* caption, int type);
typedef int(TOVU_CALLBACK* ProgressDialogCallback)(char const*, char const*, char const*, char const*,
                                                   char const*, char const*, char const*, char const*,
                                                   char const*, char const*, short, short);
typedef int(TOVU_CALLBACK* CloseProgressDialogCallback)();

// GUIService
//
// Service 3: message box and progress dialog through callbacks that the host
// registers. The order of the virtual operations is part of the binary interface.
class TOVU_API GUIService : public Service {
public:
    // Owned by the lifetime manager; hosts never delete a service.
    virtual ~GUIService() = 0;
    // Sets the host's message box; it replaces any earlier one.
    virtual void registerMessageBox(MessageBoxCallback callback) = 0;
    // Sets the host's callback that opens the progress dialog.
    virtual void registerInitProgressDialog(ProgressDialogCallback callback) = 0;
    // Sets the host's callback that updates the progress dialog.
    virtual void registerUpdateProgressDialog(ProgressDialogCallback callback) = 0;
    // Sets the host's callback that closes the progress dialog.
    virtual void registerCloseProgressDialog(CloseProgressDialogCallback callback) = 0;
    // Forgets the message box; later calls answer 0.
    virtual void unregisterMessageBox() = 0;
    // Forgets the opening callback; later calls answer 0.
    virtual void unregisterInitProgressDialog() = 0;
    // Forgets the updating callback; later calls answer 0.
    virtual void unregisterUpdateProgressDialog() = 0;
    // Forgets the closing callback; later calls answer 0.
    virtual void unregisterCloseProgressDialog() = 0;
    // Logs "[caption]: text" at INFO, then, when dialogs are enabled and a
    // message box is registered, answers what the host's box answers; else 0.
    // A callback that throws gives 0 and an error line.
    virtual int messageBox(std::string const& text, std::string const& caption, int type) = 0;
    // The same; a null text or caption counts as "". Goes through the string
    // form, so an override of that serves both.
    virtual int messageBox(char const* text, char const* caption, int type) = 0;
    // Passes the ten texts and two numbers to the host's opening callback
    // when dialogs are enabled and it is registered, and answers its result;
    // else 0.
    virtual int initProgressDialog(char const*, char const*, char const*, char const*, char const*,
                                   char const*, char const*, char const*, char const*, char const*,
                                   short, short) = 0;
    // As initProgressDialog, through the updating callback.
    virtual int updateProgressDialog(char const*, char const*, char const*, char const*, char const*,
                                     char const*, char const*, char const*, char const*, char const*,
                                     short, short) = 0;
    // Calls the host's closing callback when dialogs are enabled and it is
    // registered, and answers its result; else 0.
    virtual int closeProgressDialog() = 0;
    // False only when the key TEST.NO_DIALOG of "tdf.dii" in the INI home is
    // exactly "TRUE"; the file is asked on every call.
    virtual bool isDialogEnabled() = 0;
};

#endif
