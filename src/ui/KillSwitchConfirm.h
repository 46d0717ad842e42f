#pragma once

class QWidget;

// Asked when the kill switch is turned on in the proxy transport:
// 1 switch to Auto and enable, 2 choose a mode, 0 cancelled or closed.
int confirmKillSwitchNeedsVpnMode(QWidget *parent);

// Asked when a proxy mode is chosen while the kill switch is on: 1 open settings, 0 otherwise.
int confirmProxyNeedsKillSwitchOff(QWidget *parent);
