#include "platform/information_tool.h"

InformationTool start_information_tool() {
    return InformationTool::unknown;
}
