#include "tovuutil/platform/GUIServiceImpl.h"

#include "tovuutil/framework/Logger.h"

// Placeholder until the host callbacks land: callbacks are kept, nothing is called.

GUIServiceImpl::GUIServiceImpl() : logger_(Logger::getInstance("tovuutil.GUIServiceImpl"))
{
    logger_->beginConstruct("GUIServiceImpl()");
    logger_->endConstruct("GUIServiceImpl()");
}

GUIServiceImpl::~GUIServiceImpl()
{
    logger_->beginDestruct("~GUIServiceImpl()");
    logger_->endDestruct("~GUIServiceImpl()");
}

void GUIServiceImpl::registerMessageBox(MessageBoxCallback callback) { messageBox_ = callback; }
void GUIServiceImpl::registerInitProgressDialog(ProgressDialogCallback callback) { initProgressDialog_ = callback; }
void GUIServiceImpl::registerUpdateProgressDialog(ProgressDialogCallback callback) { updateProgressDialog_ = callback; }
void GUIServiceImpl::registerCloseProgressDialog(CloseProgressDialogCallback callback)
{
    closeProgressDialog_ = callback;
}
void GUIServiceImpl::unregisterMessageBox() { messageBox_ = nullptr; }
void GUIServiceImpl::unregisterInitProgressDialog() { initProgressDialog_ = nullptr; }
void GUIServiceImpl::unregisterUpdateProgressDialog() { updateProgressDialog_ = nullptr; }
void GUIServiceImpl::unregisterCloseProgressDialog() { closeProgressDialog_ = nullptr; }
int GUIServiceImpl::messageBox(std::string const&, std::string const&, int) { return 0; }
int GUIServiceImpl::messageBox(char const*, char const*, int) { return 0; }
int GUIServiceImpl::initProgressDialog(char const*, char const*, char const*, char const*, char const*, char const*,
                                       char const*, char const*, char const*, char const*, short, short)
{
    return 0;
}
int GUIServiceImpl::updateProgressDialog(char const*, char const*, char const*, char const*, char const*,
                                         char const*, char const*, char const*, char const*, char const*, short,
                                         short)
{
    return 0;
}
int GUIServiceImpl::closeProgressDialog() { return 0; }
bool GUIServiceImpl::isDialogEnabled() { return false; }
