#include "ReaderScreen.h"

#include "Device.h"

void ReaderScreen::loadAppearance(int firstBound, double defaultFontSize)
{
    m_appearance.drawWallpaper(firstBound);
    m_deviceid = Device::shared().deviceid();
    m_appearance.read(defaultFontSize);
}
