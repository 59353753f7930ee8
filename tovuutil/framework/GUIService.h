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
    virtual ~GUIService() = 0;
    virtual void registerMessageBox(MessageBoxCallback callback) = 0;
    virtual void registerInitProgressDialog(ProgressDialogCallback callback) = 0;
    virtual void registerUpdateProgressDialog(ProgressDialogCallback callback) = 0;
    virtual void registerCloseProgressDialog(CloseProgressDialogCallback callback) = 0;
    virtual void unregisterMessageBox() = 0;
    virtual void unregisterInitProgressDialog() = 0;
    virtual void unregisterUpdateProgressDialog() = 0;
    virtual void unregisterCloseProgressDialog() = 0;
    virtual int messageBox(std::string const& text, std::string const& caption, int type) = 0;
    virtual int messageBox(char const* text, char const* caption, int type) = 0;
    virtual int initProgressDialog(char const*, char const*, char const*, char const*, char const*,
                                   char const*, char const*, char const*, char const*, char const*,
                                   short, short) = 0;
    virtual int updateProgressDialog(char const*, char const*, char const*, char const*, char const*,
                                     char const*, char const*, char const*, char const*, char const*,
                                     short, short) = 0;
    virtual int closeProgressDialog() = 0;
    virtual bool isDialogEnabled() = 0;
};

#endif
