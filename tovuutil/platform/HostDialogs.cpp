#include "tovuutil/platform/HostDialogs.h"

#include "tovuutil/framework/GUIService.h"
#include "tovuutil/framework/UtilServiceFactory.h"

namespace {
GUIService* service() { return static_cast<GUIService*>(UtilServiceFactory::getService(3)); }
} // namespace

// After shutdown there is no service: nothing is shown.
int messageBox(std::string const& first, std::string const& second, int type)
{
    GUIService* gui = service();
    return gui ? gui->messageBox(first, second, type) : 0;
}

int initDialog(char const* t1, char const* t2, char const* t3, char const* t4, char const* t5, char const* t6,
               char const* t7, char const* t8, char const* t9, char const* t10, short n1, short n2)
{
    GUIService* gui = service();
    return gui ? gui->initProgressDialog(t1, t2, t3, t4, t5, t6, t7, t8, t9, t10, n1, n2) : 0;
}

int updateDialog(char const* t1, char const* t2, char const* t3, char const* t4, char const* t5, char const* t6,
                 char const* t7, char const* t8, char const* t9, char const* t10, short n1, short n2)
{
    GUIService* gui = service();
    return gui ? gui->updateProgressDialog(t1, t2, t3, t4, t5, t6, t7, t8, t9, t10, n1, n2) : 0;
}

int closeDialog()
{
    GUIService* gui = service();
    return gui ? gui->closeProgressDialog() : 0;
}

bool isDialogEnabled()
{
    GUIService* gui = service();
    return gui ? gui->isDialogEnabled() : false;
}
