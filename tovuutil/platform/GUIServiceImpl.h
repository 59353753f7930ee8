#ifndef TOVUUTIL_PLATFORM_GUISERVICEIMPL_H
#define TOVUUTIL_PLATFORM_GUISERVICEIMPL_H

#include <tovuutil/framework/GUIService.h>

class Logger;

// GUIServiceImpl
//
// Service 3, created by the lifetime manager at start-up.
class TOVU_API GUIServiceImpl : public GUIService {
public:
    GUIServiceImpl();
    ~GUIServiceImpl() override;

    void registerMessageBox(MessageBoxCallback callback) override;
    void registerInitProgressDialog(ProgressDialogCallback callback) override;
    void registerUpdateProgressDialog(ProgressDialogCallback callback) override;
    void registerCloseProgressDialog(CloseProgressDialogCallback callback) override;
    void unregisterMessageBox() override;
    void unregisterInitProgressDialog() override;
    void unregisterUpdateProgressDialog() override;
    void unregisterCloseProgressDialog() override;
    int messageBox(std::string const& text, std::string const& caption, int type) override;
    int messageBox(char const* text, char const* caption, int type) override;
    int initProgressDialog(char const*, char const*, char const*, char const*, char const*, char const*,
                           char const*, char const*, char const*, char const*, short, short) override;
    int updateProgressDialog(char const*, char const*, char const*, char const*, char const*, char const*,
                             char const*, char const*, char const*, char const*, short, short) override;
    int closeProgressDialog() override;
    bool isDialogEnabled() override;

private:
    Logger* logger_;
    MessageBoxCallback messageBox_ = nullptr;
    ProgressDialogCallback initProgressDialog_ = nullptr;
    ProgressDialogCallback updateProgressDialog_ = nullptr;
    CloseProgressDialogCallback closeProgressDialog_ = nullptr;
};

#endif
