#include "ui/resources.h"

#include "ui/dialog_templates.h"
#include "ui/tervo_icon.h"

HINSTANCE ModuleResources() {
    static const CModuleResources resources{
        {GenPageTemplate(), OptPageTemplate(), ZSPageTemplate(), SaveTemplate(), OpenTemplate()},
        {TervoIcon()}};
    return &resources;
}
