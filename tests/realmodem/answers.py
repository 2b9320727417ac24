"""What the scripted modems answer: tables that `plug` lays over one another, by name.

A key is a command, or its beginning when it ends in "*". The value is the text of the answer; a final OK is added
unless one of its lines is a final result itself. SILENCE never answers. Commands that no table has get ERROR.
Commands and forms: 3GPP TS 27.007, TS 27.005, ITU-T V.250; CDMA: TIA/EIA IS-707.
"""

SILENCE = "(silence)"

# GSM, UMTS and LTE, registered at home. Without the first block ModemManager makes no modem of it.
GSM = {
    "ATE0": "",
    "AT+CMEE=1": "",
    "AT+GCAP": "+GCAP: +CGSM,+ES",
    "AT+CGMI": "Example Vendor",
    "AT+CGMM": "Virtual One",
    "AT+CGMR": "Rev 1.0",
    "AT+CGSN": "490154203237518",
    "AT+CFUN?": "+CFUN: 1",
    "AT+CFUN=*": "",
    "AT+CPIN?": "+CPIN: READY",
    "AT+CIMI": "460110123456789",
    # Modes that can be chosen: GSM, UMTS, LTE, the first two, all three.
    "AT+WS46=?": "+WS46: (12,22,25,28,31)",
    # Files of the card: its number, the length of the network code, the operator's own name, the group identifier.
    "AT+CRSM=176,12258,0,0,10": '+CRSM: 144,0,"98681020305060708090"',
    "AT+CRSM=176,28589,0,0,4": '+CRSM: 144,0,"00000002"',
    "AT+CRSM=176,28486,0,0,17": '+CRSM: 144,0,"004578616D706C65FFFFFFFFFFFFFFFFFF"',
    "AT+CRSM=176,28478,0,0,0": '+CRSM: 144,0,"2AFF"',
    "AT+CNUM": '+CNUM: "","+15555550100",145',
    "AT+CREG=*": "",
    "AT+CGREG=*": "",
    "AT+CEREG=*": "",
    "AT+CREG?": '+CREG: 2,1,"0A01","0000B001"',
    "AT+CGREG?": '+CGREG: 2,1,"0A01","0000B001"',
    "AT+CEREG?": '+CEREG: 2,1,"0A01","0000B001",7',
    "AT+COPS=0": "",
    "AT+COPS=3,0": "",
    "AT+COPS=3,2": "",
    # In the format that AT+COPS=3,… asked for last.
    "AT+COPS? 0": '+COPS: 0,0,"Example",7',
    "AT+COPS? 2": '+COPS: 0,2,"46011",7',
    "AT+CSQ": "+CSQ: 20,99",
    "AT+CGDCONT=?": '+CGDCONT: (1-8),"IP",,,(0),(0)\n+CGDCONT: (1-8),"IPV6",,,(0),(0)\n'
                    '+CGDCONT: (1-8),"IPV4V6",,,(0),(0)',
    "AT+CGDCONT?": '+CGDCONT: 1,"IP","attach.example","0.0.0.0",0,0',
    "AT+CGDCONT=*": "",
    "AT+CGACT?": "+CGACT: 1,0",
    "AT+CGACT=*": "",
    "ATH": "",
    "ATZ": "",
    "AT&C1": "",
    "ATD*99*": "CONNECT 150000000",
}

# Over GSM: CDMA 1x and EV-DO alone.
CDMA = {
    "AT+GCAP": "+GCAP: +CIS707-A,CIS-856,+MS,+ES,+DS",
    "ATI": "Manufacturer: Example Vendor\nModel: Virtual CDMA\nRevision: 1.0\nESN: 80C0FFEE\n"
           "+GCAP: +CIS707-A,CIS-856,+MS,+ES,+DS",
    "AT+GMI": "Example Vendor",
    "AT+GMM": "Virtual CDMA",
    "AT+GMR": "Rev 1.0",
    "AT+GSN": "0x80C0FFEE",
    "AT+CGMM": "Virtual CDMA",
    "AT+CGSN": "0x80C0FFEE",
    "AT+WS46=?": "ERROR",
    "AT+CAD?": "+CAD: 1",
    "AT+CSS?": "?2,B,4139",
    "AT$SPERI?": "$SPERI: 1",
    "AT+SPSERVICE?": "+SPSERVICE: 2",
    "ATD#777*": "CONNECT",
    "ATDT#777*": "CONNECT",
}

# Over GSM: both families in one modem.
MULTI = {"AT+GCAP": "+GCAP: +CIS707-A,CIS-856,+CGSM,+MS,+ES,+DS"}

# Over GSM: another modem of the same make.
SECOND = {"AT+CGSN": "490154203237526", "AT+CIMI": "262011234567890", "AT+CGMM": "Virtual Two"}

NO_CARD = {"AT+CPIN?": "+CME ERROR: 10", "AT+CIMI": "+CME ERROR: 10"}

# The right PIN is 1234; UNLOCKED takes effect with it.
PIN = {
    "AT+CPIN?": "+CPIN: SIM PIN",
    "AT+CIMI": "+CME ERROR: 11",
    'AT+CPIN="1234"': "",
    "AT+CPIN=*": "+CME ERROR: 16",
    # Attempts left, in the last digit: PIN, PUK, second PIN, its PUK.
    'AT+CSIM=10,"0020000100"': '+CSIM: 4,"63C3"',
    'AT+CSIM=10,"002C000100"': '+CSIM: 4,"63CA"',
    'AT+CSIM=10,"0020008100"': '+CSIM: 4,"63C3"',
    'AT+CSIM=10,"002C008100"': '+CSIM: 4,"63CA"',
}
PUK = {**PIN, "AT+CPIN?": "+CPIN: SIM PUK", 'AT+CPIN="1234"': "+CME ERROR: 16", 'AT+CPIN="12345678","1234"': ""}
UNLOCKED = {"AT+CPIN?": "+CPIN: READY", "AT+CIMI": GSM["AT+CIMI"]}

# A lasting change that a command makes: command → table.
CHANGES = {'AT+CPIN="1234"': UNLOCKED, 'AT+CPIN="12345678","1234"': UNLOCKED}

# ModemManager asks for UCS2, so the network's names are hexadecimal then; what the network says comes unasked.
USSD = {
    "AT+CUSD=?": "+CUSD: (0,1,2)",
    "AT+CUSD=0": "",
    "AT+CUSD=1": "",
    "AT+CUSD=2": "",
    "AT+CUSD=1,*": 'OK\n+CUSD: 0,"Your balance is 12.34",15',
    "AT+CSCS=?": '+CSCS: ("IRA","GSM","UCS2")',
    "AT+CSCS?": '+CSCS: "UCS2"',
    "AT+CSCS=*": "",
    "AT+COPS? 0": '+COPS: 0,0,"004500780061006D0070006C0065",7',
    "AT+COPS? 2": '+COPS: 0,2,"00340036003000310031",7',
}
