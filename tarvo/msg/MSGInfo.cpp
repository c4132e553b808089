#include "tarvo/msg/MSGInfo.h"

IMSGInfo* IMSGInfo::m_pInstance = nullptr;

IMSGInfo::IMSGInfo()
{
    if (!m_pInstance)
        m_pInstance = this;
}

IMSGInfo::~IMSGInfo() = default;

IMSGInfo* IMSGInfo::Instance() { return m_pInstance; }
