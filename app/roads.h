#pragma once

class Station;

// Connects every call that runs upwards between the forms: a lower form raises an event, and this one page says who
// hears it. Nothing else connects forms upwards.
void ConnectRoads(Station& station);
