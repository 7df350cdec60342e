enum TDay { dSunday, dMonday, dTuesday, dFriday = 5 };
inline TDay Other;
