<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>Benutzername und Kennwort für „%1“:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>Die Verbindungseinstellungen sind nicht geladen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>Es gibt kein Standardprofil. Legen Sie eines in den Einstellungen fest.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>Es gibt kein Profil „%1“.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>Der Verbindungsaufbau wurde abgebrochen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>Das Modem ist noch nicht bereit. Warten Sie einen Augenblick und versuchen Sie es noch einmal; hilft das nicht, ziehen Sie es ab und schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>Das Netz antwortet nicht (kein Trägersignal). Versuchen Sie es bei besserem Empfang noch einmal.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>Das Netz hat den Benutzernamen oder das Kennwort von „%1“ abgelehnt. Korrigieren Sie die Angaben in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <translation>Es ist kein Modem angeschlossen. Schließen Sie eines an.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <translation>Das Modem wird von %1 benutzt. Beenden Sie zuerst diese Verbindung.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <translation>Die Karte hat keinen Datendienst für „%1“. Prüfen Sie den Zugangspunkt (APN) oder fragen Sie Ihren Anbieter.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <translation>Das Netz hat „%1“ ohne Angabe eines Grundes abgelehnt. Prüfen Sie Benutzernamen, Kennwort und Zugangspunkt (APN).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <translation>Die Verbindung ist abgebrochen. Verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>Die Verbindung konnte auf diesem Rechner nicht gestartet werden. Versuchen Sie es noch einmal; die Details sagen vielleicht mehr.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <translation>Die Nummer ist besetzt. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <translation>Kein Wählton. Prüfen Sie Antenne und Karte des Modems.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <translation>Das Netz hat nicht rechtzeitig geantwortet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <translation>Das Netz lehnt den Zugangspunkt (APN) von „%1“ ab. Korrigieren Sie ihn in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <translation>Es wurde kein Netz gefunden. Versuchen Sie es bei besserem Empfang noch einmal.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <translation>Das Netz lässt diese Karte nicht zu. Fragen Sie Ihren Anbieter, ob die Karte freigeschaltet ist.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <translation>Im Modem steckt keine SIM-Karte. Legen Sie eine ein.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <translation>Die SIM-Karte ist gesperrt. Geben Sie ihre PIN ein.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <translation>Das Modem nimmt diese SIM-Karte nicht an. Verwenden Sie eine Karte des Anbieters, von dem das Modem stammt.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <translation>Die PIN war falsch. Geben Sie die richtige ein.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <translation>Das Modem wurde entfernt oder arbeitet nicht mehr. Schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <translation>Der Dienst für Modems (ModemManager) läuft nicht oder antwortet nicht. Starten Sie ihn neu oder fragen Sie Ihren Administrator.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>Der Dienst für Verbindungen (NetworkManager) läuft nicht oder antwortet nicht. Starten Sie ihn neu oder fragen Sie Ihren Administrator.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>Die Verbindung wurde beendet, weil der Rechner in den Ruhezustand ging. Verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>Ein anderes Programm hat das Modem für eine eigene Verbindung übernommen. Beenden Sie diese und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>Das Netz verlangt Benutzernamen und Kennwort. Geben Sie sie für „%1“ in den Einstellungen ein.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>Die Verbindung wurde außerhalb dieses Programms beendet. Verbinden Sie sich bei Bedarf neu.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>Die Verbindung wurde in einem anderen Programm von OrbisDial beendet.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <translation>Das Modem hängt in einem früheren Anruf fest. Ziehen Sie es ab und schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <translation>Sie dürfen auf diesem Rechner keine Verbindung herstellen. Bitten Sie Ihren Administrator um die Berechtigung.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <translation>Der Verbindungsaufbau mit „%1“ ist fehlgeschlagen. Die Details sagen, was bekannt ist.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <translation>Die Verbindung konnte nicht beendet werden. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>Das Modem oder das Netz nimmt solche Befehle nicht an.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>Das Netz hat den Befehl abgelehnt oder die Sitzung beendet.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <translation>Das Netz hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <translation>Die Sitzung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <translation>Sie dürfen auf diesem Rechner keine Befehle senden. Bitten Sie Ihren Administrator um die Berechtigung.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <translation>Der Befehl ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <translation>Rufen Sie %1 an.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <translation>Senden Sie die SMS „%2“ an %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <translation>Senden Sie eine leere SMS an %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <translation>Der Name des Profils „%1“ ist für eine Verbindung zu lang. Kürzen Sie ihn.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <translation>Die Einwahlnummer von „%1“ ist ungültig. Korrigieren Sie sie in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <translation>Der Zugangspunkt (APN) von „%1“ ist ungültig: höchstens 64 Buchstaben, Ziffern, Punkte, Binde- und Unterstriche. Korrigieren Sie ihn in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <translation>Die IP-Adresse von „%1“ ist ungültig. Korrigieren Sie sie in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <translation>Die Adresse des DNS-Servers von „%1“ ist ungültig. Korrigieren Sie sie in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <translation>Die Adresse des zweiten DNS-Servers von „%1“ ist ungültig. Korrigieren Sie sie in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <translation>Der Benutzername von „%1“ kann nicht gesendet werden: höchstens 255 Byte. Kürzen Sie ihn.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <translation>Das Kennwort von „%1“ kann nicht gesendet werden: höchstens 255 Byte. Kürzen Sie es.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <translation>Modem wird vorbereitet</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <translation>Netz wird gesucht, das kann eine Minute dauern</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <translation>Einwahl ins Netz</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <translation>Adresse wird angefordert</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <translation>Wird von %1 benutzt</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <translation>Die Einwahlnummer hat keine Wirkung: Das Modem wählt die des Netzes.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <translation>Die feste IP-Adresse hat keine Wirkung: Das Netz teilt die Adresse zu.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <translation>Die WINS-Server haben keine Wirkung.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <translation>Die feste IP-Adresse war nicht verfügbar; das Netz hat %1 zugeteilt.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <translation>80 Prozent des Datenvolumens dieses Monats sind verbraucht.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <translation>Das Datenvolumen dieses Monats ist verbraucht.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <translation>Die automatische Verbindung wartet, bis Sie sich selbst verbinden.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <translation>Die automatische Verbindung wartet auf das Modem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <translation>Die automatische Verbindung wartet auf ein Netz.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <translation>Im Roaming wird nicht automatisch verbunden.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <translation>Die automatische Verbindung wartet, bis das Modem frei ist.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <translation>Die automatische Verbindung wird bald erneut versucht.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <translation>Die automatische Verbindung ist angehalten, weil das Netz „%1“ abgelehnt hat. Korrigieren Sie Benutzernamen und Kennwort oder verbinden Sie sich selbst.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <translation>Die automatische Verbindung ist angehalten: Ein neuer Versuch würde ebenso fehlschlagen.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <translation>Die automatische Verbindung kann „%1“ nicht verwenden, da das Profil nach Benutzernamen und Kennwort fragt.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BYTES</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBYTES</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABYTES</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABYTES</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BITS_PER_SECOND</source>
        <translation>%1 bit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBITS_PER_SECOND</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABITS_PER_SECOND</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABITS_PER_SECOND</source>
        <translation>%1 Gbit/s</translation>
    </message>
</context>
<context>
    <name>NetConnectPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>Einwahl</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>Verbindungsp&amp;rofil</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>Anmeldeprotokoll</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>&amp;APN:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>Einwahln&amp;ummer:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>Benutzerna&amp;me:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>Kenn&amp;wort:</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>Beim Verbinden abfra&amp;gen</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_CHAP</source>
        <translation>C&amp;HAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_PAP</source>
        <translation>&amp;PAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NEW</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>Als S&amp;tandard</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>&amp;Import…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>E&amp;xport…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>&amp;Erweitert…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(Standard)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Verbindungseinstellungen</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>Bitte geben Sie einen Profilnamen ein.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>Ein Profil mit diesem Namen ist bereits vorhanden. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>Der Profilname darf keines dieser Zeichen enthalten: </translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>Bitte geben Sie die Einwahlnummer ein, zum Beispiel *99#.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>Der APN ist ungültig. Er darf Buchstaben, Ziffern, Punkte und Bindestriche enthalten und muss mit einem Buchstaben oder einer Ziffer beginnen und enden.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>Möchten Sie dieses Profil löschen?</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>Das Profil enthält nicht gespeicherte Änderungen. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>ist bereits vorhanden. Möchten Sie dieses Profil ersetzen?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>Diese Antwort für die übrigen Profile übernehmen</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>Die IP-Adresse ist ungültig. Bitte geben Sie eine Adresse wie 192.0.2.1 ein.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>Die Adresse des DNS-Servers ist ungültig. Bitte geben Sie eine Adresse wie 192.0.2.1 ein.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>Die Adresse des WINS-Servers ist ungültig. Bitte geben Sie eine Adresse wie 192.0.2.1 ein.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>Profile importieren</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>Profile exportieren</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>Einwahlprofile</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>DNS-Server</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>WINS-Server</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>&amp;IP-Adresse:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>P&amp;rimär:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>&amp;Sekundär:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>Pri&amp;mär:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>S&amp;ekundär:</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>Dieses Profil ist schreibgeschützt. Um es zu ändern, drücken Sie „Neu“ und geben Sie seine Werte unter einem anderen Namen ein.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>Dieses Profil ist vorgegeben. Um es zu ändern, schließen Sie die Einstellungen und drücken Sie im Hauptfenster Strg+N: Das legt ein eigenes Profil mit denselben Werten an.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>Dieses Profil ist verbunden. Trennen Sie zuerst die Verbindung.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>Der Standard kann nicht geändert werden, solange eine Verbindung besteht. Trennen Sie zuerst die Verbindung.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>Es gibt noch kein Profil. Drücken Sie „Neu“, um eines anzulegen.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>Ein Profil wird gerade bearbeitet. Drücken Sie zuerst „Speichern“ oder „Verwerfen“.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>Es wird kein Profil bearbeitet. Drücken Sie zuerst „Neu“ oder „Bearbeiten“.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>Dieses Profil ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>Dieses Profil ist vorgegeben.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>Dieses Profil ist verbunden.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>Das Profil konnte nicht gespeichert werden. Nichts ist verloren: Beheben Sie das Problem und drücken Sie erneut „Speichern“.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>Einige Zeichen sind nicht speicherbar: nur westeuropäische verwenden.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>Profilname</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>Profile zur Auswahl</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>Ein Dateiname darf kein „*“ enthalten. Bitte geben Sie einen anderen ein.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>ist bereits vorhanden. Die Profile der Datei bleiben erhalten, gleichnamige werden ersetzt. In diese Datei exportieren?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <translation>Die Konfiguration erlaubt keinen Import.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <translation>Die Datei enthält keine Profile.</translation>
    </message>
</context>
<context>
    <name>OrbisDial</name>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE_SIMULATED</source>
        <translation>OrbisDial (simuliertes Modem)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>Einstellungsseiten</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>Kein Standardprofil</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>Verbindung wird hergestellt…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>Verbindung wird getrennt…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>Das Einwahl-Plug-in ist nicht geladen</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>SIM-Karte %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>SIM-Karte %1: Vorgabe „%2“, ausgewählt durch ihr Präfix %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <translation>SIM-Karte %1: Vorgabe „%2“, ausgewählt durch ihr Präfix %3 und den Namen ihres Anbieters, %4</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>SIM-Karte %1: Präfix %2 ist bekannt, aber keine seiner Vorgaben ist als Standard vorgeschlagen</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>SIM-Karte %1: keine Vorgabe passt dazu</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>Problem beim Speichern: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>%1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>es kann nicht geladen werden (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>es ist kein Plug-in dieses Programms</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>ein anderes Plug-in hat dieselbe Kennung</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>es konnte nicht starten</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>Das Modem kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>Standardprofil beibehalten: Schaltfläche „Als Standard“ ausblenden</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>Profil für die Verbindung</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>Ein Profil wählen oder einen Teil seines Namens eingeben</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>Eigene Profile</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>Vorgaben für diese SIM-Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>Vorgaben…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>Vorgaben der Anbieter weltweit</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>Land, Anbieter, Tarif, APN oder Netzkennung</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>Länder, Anbieter und Tarife</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>Land, Anbieter, Tarif</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <translation>Tarife: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>Nichts gefunden. Versuchen Sie es mit weniger Wörtern oder einer anderen Schreibweise.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>Weitere Vorgaben</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <translation>%1 (Prepaid)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <translation>%1 (Vertrag)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>Wählen Sie einen Tarif, um seine Werte zu sehen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>Als neues Profil verwenden…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>Anbieter:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>Tarif:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>vom Netz bestimmt</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>Einwahlnummer:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>wird beim Verbinden erfragt</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>Anmeldung:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>Netzkennungen:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <translation>Neu aus diesem…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <translation>Ein eigenes Profil mit den Werten von „%1“. Ändern können Sie sie in den Einstellungen.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>Als Standard verwenden</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>Der Standard kann nicht geändert werden, solange eine Verbindung besteht.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <translation>Anbieter wählen…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>Für diese SIM-Karte ist keine Vorgabe bekannt. Wählen Sie Ihren Anbieter oder unten ein Profil.</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>Entsperren…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <translation>Guthaben…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>&amp;Verbindung</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>Über OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>Über OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>Ein Verbindungsmanager für Mobilfunkmodems.

MIT-Lizenz. Erstellt mit Qt %1 (LGPL), libsodium (ISC), ICU (Unicode) und der gemeinfreien Datenbank mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>Verbinden mit</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>Der Teil des Programms, der die Verbindung herstellt, fehlt. Installieren Sie OrbisDial neu.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>Modem wird gesucht…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>Das dauert einen Augenblick.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>Modemdienst nicht verfügbar</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial findet Modems über den Dienst ModemManager, der nicht läuft oder nicht antwortet. Installieren Sie ihn oder starten Sie ihn neu.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>Verbindungsdienst nicht verfügbar</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>OrbisDial verbindet über den Dienst NetworkManager, der nicht antwortet. Starten Sie ihn neu oder fragen Sie Ihren Administrator.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>Kein Modem</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>Schließen Sie ein Modem an. Manche werden erst nach einer halben Minute gefunden.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>Keine SIM-Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>Ziehen Sie das Modem ab, legen Sie eine SIM-Karte ein und schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>SIM-Karte gesperrt</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>Sie verlangt ihre PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>Die PIN war zu oft falsch. Die Karte verlangt jetzt die PUK, die Sie von Ihrem Anbieter haben.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>Diese Sperre öffnet weder PIN noch PUK. Fragen Sie Ihren Anbieter oder den Verkäufer des Modems.</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>Modem startet…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>Es ist gleich bereit.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>Modem nicht bereit</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>Ziehen Sie es ab und schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>In keinem Netz angemeldet</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>Netz wird gesucht…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>Das Netz lehnt diese SIM-Karte ab. Fragen Sie Ihren Anbieter.</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>Signal %1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>Verbinden mit %1…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>Verbindung nicht möglich</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>Verbindung mit %1 nicht möglich</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>Die Verbindung mit %1 ist abgebrochen</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <translation>Die Verbindung mit %1 wurde beendet</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>Übertragung der letzten drei Minuten</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>In diesem Monat: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>In diesem Monat: %1 von %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>SIM-Karte entsperren</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>Guthaben der SIM-Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <translation>%1 nennt das Guthaben einer Prepaid-Karte auf den Befehl %2 hin. Gesendet wird erst, wenn Sie „Abfragen“ drücken.</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <translation>%1 nennt das Guthaben auf diesem Weg, den Sie selbst gehen müssen:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>Wie Ihr Anbieter das Guthaben mitteilt, ist hier nicht bekannt. Wenn Sie seinen Befehl kennen, geben Sie ihn ein; gesendet wird erst, wenn Sie „Abfragen“ drücken.</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <translation>Ihre Antwort:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>Warten auf das Netz…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>Es ist kein Modem bereit, das dem Netz Befehle senden kann.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>Die SIM-Karte verlangt ihre PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>Die PIN war zu oft falsch. Geben Sie die PUK ein, die Sie von Ihrem Anbieter haben, und wählen Sie eine neue PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN</source>
        <translation>PIN:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK</source>
        <translation>PUK:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NEW_PIN</source>
        <translation>Neue PIN:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>Neue PIN wiederholen:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>Verbleibende Versuche: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>Wie viele Versuche verbleiben, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>Ist die PIN auch diesmal falsch, verlangt die Karte die PUK.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>Ist die PUK auch diesmal falsch, wird die Karte endgültig unbrauchbar.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>Den letzten Versuch nutzen</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>Die Karte prüft…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>Die Eingabe war falsch.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>Sie dürfen die Karte nicht entsperren. Fragen Sie den Administrator dieses Rechners.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>Die Karte konnte nicht entsperrt werden. %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>Meldungen über die Verbindung anzeigen</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>Beim Schließen des Fensters im Infobereich weiterlaufen</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>Mit der Sitzung starten</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>Nach dem Ende des Programms verbunden bleiben</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>Monatliches Datenlimit dieser SIM-Karte:</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>Sie sind verbunden. Mit dem Programm endet die Verbindung.</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>Sie sind verbunden und bleiben es nach dem Ende des Programms.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>Simuliertes Modem</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>IMSI:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>keine Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>Multimode-Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>Kartenmodus:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>Produkttyp:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>Systemmodus:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>Untermodus:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>Einwahl:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>Gegenstelle antwortet</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>Kein Trägersignal</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>Anmeldung schlägt fehl</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>Kein Signal</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>Initialisieren</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>Karte wechseln</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>Einstellung:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>Verbindung abbrechen lassen</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <translation>Aus %1 wurde nichts importiert.
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <translation>Schließen Sie zuerst ab, was gerade offen ist, und öffnen Sie die Datei dann erneut.</translation>
    </message>
</context>
<context>
    <name>Programs</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (chosen by the user)</source>
        <translation>%1 (vom Benutzer gewählt)</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1 (von der Konfiguration vorgeschlagen)</translation>
    </message>
    <message>
        <source>%1 (simulated modem)</source>
        <translation>%1 (simuliertes Modem)</translation>
    </message>
    <message>
        <source>%1 Put -- before a name that begins with a hyphen.</source>
        <translation>%1 Setzen Sie -- vor einen Namen, der mit einem Bindestrich beginnt.</translation>
    </message>
    <message>
        <source>%1 bytes received, %2 sent</source>
        <translation>%1 Byte empfangen, %2 gesendet</translation>
    </message>
    <message>
        <source>%1 holds no profile %2</source>
        <translation>%1 enthält kein Profil %2</translation>
    </message>
    <message>
        <source>%1 is a preset; make one of your own from it: %2</source>
        <translation>%1 ist eine Vorgabe; machen Sie daraus ein eigenes Profil: %2</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 ist verbunden; siehe orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is being connected; see orbisctl disconnect</source>
        <translation>%1 wird gerade verbunden; siehe orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is no field to set; fields: %2</source>
        <translation>%1 ist kein setzbares Feld; Felder: %2</translation>
    </message>
    <message>
        <source>%1 is no limit; say a volume such as 500MB or 1.5GB</source>
        <translation>%1 ist kein Limit; geben Sie ein Volumen wie 500MB oder 1.5GB an</translation>
    </message>
    <message>
        <source>%1 is read-only; make one of your own from it: %2</source>
        <translation>%1 ist schreibgeschützt; machen Sie daraus ein eigenes Profil: %2</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>%1 kann mehr als ein Befehl sein: %2</translation>
    </message>
    <message>
        <source>%1 names a modem, and counts before the choice</source>
        <translation>%1 nennt ein Modem und geht der Wahl vor</translation>
    </message>
    <message>
        <source>%1 of %2 were no IMSI, which has 5 to 15 digits</source>
        <translation>%1 von %2 waren keine IMSI, die 5 bis 15 Ziffern hat</translation>
    </message>
    <message>
        <source>%1 percent of the limit of %2</source>
        <translation>%1 Prozent des Limits von %2</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1, %2:</translation>
    </message>
    <message>
        <source>%1, at most %2 characters</source>
        <translation>%1, höchstens %2 Zeichen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 received, %3 sent, %4 together</source>
        <translation>%1: %2 empfangen, %3 gesendet, %4 zusammen</translation>
    </message>
    <message>
        <source>%1: can't be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1: does not exist</source>
        <translation>%1: nicht vorhanden</translation>
    </message>
    <message>
        <source>%1: holds no template for new profiles; see --like</source>
        <translation>%1: enthält keine Vorlage für neue Profile; siehe --like</translation>
    </message>
    <message>
        <source>%1: is no profile file; --force replaces it</source>
        <translation>%1: ist keine Profildatei; --force ersetzt sie</translation>
    </message>
    <message>
        <source>%1: is the user's profile file itself</source>
        <translation>%1: ist die Profildatei des Benutzers selbst</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1: no prefix matches; the configuration's own presets</source>
        <translation>%1: kein Präfix passt; die Vorgaben der Konfiguration</translation>
    </message>
    <message>
        <source>%1: not UTF-8 on standard input</source>
        <translation>%1: auf der Standardeingabe nicht in UTF-8</translation>
    </message>
    <message>
        <source>%1: not an IMSI</source>
        <translation>%1: keine IMSI</translation>
    </message>
    <message>
        <source>%1: prefix %2</source>
        <translation>%1: Präfix %2</translation>
    </message>
    <message>
        <source>%1: standard input holds none</source>
        <translation>%1: fehlt auf der Standardeingabe</translation>
    </message>
    <message>
        <source>%1; give a new one with password=</source>
        <translation>%1; geben Sie mit password= ein neues an</translation>
    </message>
    <message>
        <source>%1; it ends with this program, see --hold</source>
        <translation>%1; sie endet mit diesem Programm, siehe --hold</translation>
    </message>
    <message>
        <source>%1; then the card asks for its PUK; --last takes it</source>
        <translation>%1; danach verlangt die Karte ihre PUK; --last nutzt ihn</translation>
    </message>
    <message>
        <source>%1; then the card is lost; --last takes it</source>
        <translation>%1; danach ist die Karte unbrauchbar; --last nutzt ihn</translation>
    </message>
    <message>
        <source>%1; waits, since the network refused user name or password</source>
        <translation>%1; wartet, weil das Netz Benutzernamen oder Kennwort abgelehnt hat</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(verborgen)</translation>
    </message>
    <message>
        <source>--clear takes no modem</source>
        <translation>--clear nimmt kein Modem</translation>
    </message>
    <message>
        <source>--json goes with neither --terse nor --fields</source>
        <translation>--json verträgt sich weder mit --terse noch mit --fields</translation>
    </message>
    <message>
        <source>--roaming goes with on</source>
        <translation>--roaming gehört zu on</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>--timeout erwartet eine Zahl von Sekunden von 1 bis 86400</translation>
    </message>
    <message>
        <source>A profile file to import; the window asks first.</source>
        <translation>Eine Profildatei, die importiert werden soll; das Fenster fragt vorher.</translation>
    </message>
    <message>
        <source>Add a profile. password=- reads the password from standard input.</source>
        <translation>Ein Profil anlegen. password=- liest das Kennwort von der Standardeingabe.</translation>
    </message>
    <message>
        <source>All profiles of one's own.</source>
        <translation>Alle eigenen Profile.</translation>
    </message>
    <message>
        <source>Answer (none ends the session): </source>
        <translation>Antwort (leer beendet die Sitzung): </translation>
    </message>
    <message>
        <source>Ask the network for a prepaid card's balance.</source>
        <translation>Das Guthaben einer Prepaid-Karte beim Netz abfragen.</translation>
    </message>
    <message>
        <source>Change fields of a profile; name=NEW renames it.</source>
        <translation>Felder eines Profils ändern; name=NEU benennt es um.</translation>
    </message>
    <message>
        <source>Command-line client of the OrbisDial connection manager.</source>
        <translation>Das Befehlszeilenprogramm des Verbindungsmanagers OrbisDial.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Connect with a profile, or with the default.</source>
        <translation>Mit einem Profil verbinden oder mit dem Standardprofil.</translation>
    </message>
    <message>
        <source>Connection manager for mobile-broadband modems.</source>
        <translation>Verbindungsmanager für Mobilfunkmodems.</translation>
    </message>
    <message>
        <source>Delete profiles: all of them, or none.</source>
        <translation>Profile löschen: alle genannten oder keines.</translation>
    </message>
    <message>
        <source>End the connection, or give it up.</source>
        <translation>Die Verbindung beenden oder den Aufbau abbrechen.</translation>
    </message>
    <message>
        <source>Export profiles into a file; others that it holds stay.</source>
        <translation>Profile in eine Datei exportieren; andere darin bleiben.</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>Felder:</translation>
    </message>
    <message>
        <source>GID1</source>
        <translation>GID1</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Import all profiles of a file, or the named ones.</source>
        <translation>Alle Profile einer Datei importieren oder die genannten.</translation>
    </message>
    <message>
        <source>Keep the user's profiles in this folder.</source>
        <translation>Die Profile des Benutzers in diesem Ordner führen.</translation>
    </message>
    <message>
        <source>List all profiles; * marks the default.</source>
        <translation>Alle Profile auflisten; * markiert den Standard.</translation>
    </message>
    <message>
        <source>List the modems; * marks the one in use.</source>
        <translation>Die Modems auflisten; * markiert das benutzte.</translation>
    </message>
    <message>
        <source>New PIN again: </source>
        <translation>Neue PIN wiederholen: </translation>
    </message>
    <message>
        <source>New PIN: </source>
        <translation>Neue PIN: </translation>
    </message>
    <message>
        <source>Open the settings at this page: its title or its plug-in's name.</source>
        <translation>Die Einstellungen auf dieser Seite öffnen: ihr Titel oder der Name ihres Plug-ins.</translation>
    </message>
    <message>
        <source>PIN (%1): </source>
        <translation>PIN (%1): </translation>
    </message>
    <message>
        <source>PUK (%1): </source>
        <translation>PUK (%1): </translation>
    </message>
    <message>
        <source>Password [as stored]: </source>
        <translation>Kennwort [wie gespeichert]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Kennwort: </translation>
    </message>
    <message>
        <source>Replace a file even if it holds something else than profiles.</source>
        <translation>Eine Datei auch dann ersetzen, wenn sie etwas anderes als Profile enthält.</translation>
    </message>
    <message>
        <source>Replace profiles whose names exist; without it they are skipped.</source>
        <translation>Profile mit vorhandenen Namen ersetzen; sonst werden sie übersprungen.</translation>
    </message>
    <message>
        <source>Save all profiles of one's own, and the chosen default, in a file.</source>
        <translation>Alle eigenen Profile und den gewählten Standard in einer Datei sichern.</translation>
    </message>
    <message>
        <source>See orbisctl COMMAND --help.</source>
        <translation>Siehe orbisctl COMMAND --help.</translation>
    </message>
    <message>
        <source>Send a command such as *100# to the network and show its answer.</source>
        <translation>Einen Befehl wie *100# an das Netz senden und die Antwort anzeigen.</translation>
    </message>
    <message>
        <source>Show a value of the function configuration, or all.</source>
        <translation>Einen Wert der Funktionskonfiguration anzeigen oder alle.</translation>
    </message>
    <message>
        <source>Show each month that is kept.</source>
        <translation>Jeden aufbewahrten Monat anzeigen.</translation>
    </message>
    <message>
        <source>Show the connection.</source>
        <translation>Die Verbindung anzeigen.</translation>
    </message>
    <message>
        <source>Show the default profile, or choose it.</source>
        <translation>Das Standardprofil anzeigen oder wählen.</translation>
    </message>
    <message>
        <source>Show the fields of profiles.</source>
        <translation>Die Felder von Profilen anzeigen.</translation>
    </message>
    <message>
        <source>Show the modem in use, or choose one by its key, IMEI or port.</source>
        <translation>Das benutzte Modem anzeigen oder eines nach Schlüssel, IMEI oder Anschluss wählen.</translation>
    </message>
    <message>
        <source>Show the password too.</source>
        <translation>Auch das Kennwort anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Show this help, or that of a command.</source>
        <translation>Diese Hilfe anzeigen oder die eines Befehls.</translation>
    </message>
    <message>
        <source>Show what the SIM card moved this month, or set its limit.</source>
        <translation>Zeigen, was die SIM-Karte in diesem Monat übertragen hat, oder ihr Limit festlegen.</translation>
    </message>
    <message>
        <source>Show what the modem and its SIM card report, and the connection.</source>
        <translation>Anzeigen, was Modem und SIM-Karte melden, und die Verbindung.</translation>
    </message>
    <message>
        <source>Speak this language, e.g. "de" or "zh_CN".</source>
        <translation>Diese Sprache sprechen, z. B. „de“ oder „zh_CN“.</translation>
    </message>
    <message>
        <source>Spend the last attempt, too.</source>
        <translation>Auch den letzten Versuch nutzen.</translation>
    </message>
    <message>
        <source>Start from this profile instead of the template for new ones.</source>
        <translation>Von diesem Profil ausgehen statt von der Vorlage für neue.</translation>
    </message>
    <message>
        <source>Start in the desktop's tray, without a window, where there is one.</source>
        <translation>Ohne Fenster im Infobereich starten, wenn es einen gibt.</translation>
    </message>
    <message>
        <source>Stay, and hang up on Ctrl-C.</source>
        <translation>Laufen, bis Strg-C die Verbindung trennt.</translation>
    </message>
    <message>
        <source>Stay, and show each change.</source>
        <translation>Weiterlaufen und jede Änderung zeigen.</translation>
    </message>
    <message>
        <source>Take profiles and default from a backup; those of other names stay.</source>
        <translation>Profile und Standard aus einer Sicherung übernehmen; andere bleiben.</translation>
    </message>
    <message>
        <source>Take the choice back.</source>
        <translation>Die Wahl zurücknehmen.</translation>
    </message>
    <message>
        <source>Take the limit away.</source>
        <translation>Das Limit aufheben.</translation>
    </message>
    <message>
        <source>Tell what is wrong with the shipped files, or with these.</source>
        <translation>Sagen, was an den mitgelieferten oder diesen Dateien falsch ist.</translation>
    </message>
    <message>
        <source>Tell which presets SIM cards select; - reads IMSIs from standard input.</source>
        <translation>Sagen, welche Vorgaben SIM-Karten auswählen; - liest IMSIs von der Standardeingabe.</translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>Dies ist ein simuliertes Modem.</translation>
    </message>
    <message>
        <source>Unlock the SIM card with its PUK and set a new PIN, a line each.</source>
        <translation>Die SIM-Karte mit ihrer PUK entsperren und eine neue PIN setzen, je eine Zeile.</translation>
    </message>
    <message>
        <source>Unlock the SIM card; the PIN is asked for, or read from standard input.</source>
        <translation>Die SIM-Karte entsperren; die PIN wird abgefragt oder von der Standardeingabe gelesen.</translation>
    </message>
    <message>
        <source>Use this modem: %1.</source>
        <translation>Dieses Modem verwenden: %1.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Benutzername [%1]: </translation>
    </message>
    <message>
        <source>Wait no longer than so many seconds.</source>
        <translation>Höchstens so viele Sekunden warten.</translation>
    </message>
    <message>
        <source>Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB.</source>
        <translation>Bei 80 und 100 Prozent von so viel im Monat warnen, etwa 500MB oder 1.5GB.</translation>
    </message>
    <message>
        <source>What the SIM cards call their operator.</source>
        <translation>Wie die SIM-Karten ihren Anbieter nennen.</translation>
    </message>
    <message>
        <source>Whether the window connects with a profile by itself.</source>
        <translation>Ob das Fenster von selbst mit einem Profil verbindet.</translation>
    </message>
    <message>
        <source>While roaming, too.</source>
        <translation>Auch im Roaming.</translation>
    </message>
    <message>
        <source>Write a picture of the window as a PNG file, and end.</source>
        <translation>Ein Bild des Fensters als PNG-Datei schreiben und enden.</translation>
    </message>
    <message>
        <source>Write results as JSON, one object a line.</source>
        <translation>Ergebnisse als JSON ausgeben, ein Objekt je Zeile.</translation>
    </message>
    <message>
        <source>Write results as fields between tabs, for scripts.</source>
        <translation>Ergebnisse als Felder zwischen Tabulatoren ausgeben, für Skripte.</translation>
    </message>
    <message>
        <source>Write these fields only, in this order; their names are those of --json.</source>
        <translation>Nur diese Felder in dieser Reihenfolge ausgeben; sie heißen wie bei --json.</translation>
    </message>
    <message>
        <source>Write traces to standard error.</source>
        <translation>Protokoll auf die Standardfehlerausgabe schreiben.</translation>
    </message>
    <message>
        <source>a PIN has 4 to 8 digits</source>
        <translation>eine PIN hat 4 bis 8 Ziffern</translation>
    </message>
    <message>
        <source>a PUK has 8 digits</source>
        <translation>eine PUK hat 8 Ziffern</translation>
    </message>
    <message>
        <source>a picture is taken without a file to import</source>
        <translation>ein Bild wird ohne zu importierende Datei gemacht</translation>
    </message>
    <message>
        <source>an IPv4 address, or nothing</source>
        <translation>eine IPv4-Adresse oder nichts</translation>
    </message>
    <message>
        <source>an argument is not FIELD=VALUE; fields: %1</source>
        <translation>ein Argument hat nicht die Form FELD=WERT; Felder: %1</translation>
    </message>
    <message>
        <source>an option's value is empty</source>
        <translation>der Wert einer Option ist leer</translation>
    </message>
    <message>
        <source>argument %1 is not UTF-8</source>
        <translation>Argument %1 ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>attempts left: %1</source>
        <translation>verbleibende Versuche: %1</translation>
    </message>
    <message>
        <source>attempts to unlock</source>
        <translation>Versuche zum Entsperren</translation>
    </message>
    <message>
        <source>automatically</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>backend</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>by the card's operator name %1: %2</source>
        <translation>nach dem Anbieternamen der Karte, %1: %2</translation>
    </message>
    <message>
        <source>can't be dialled with</source>
        <translation>damit kann nicht gewählt werden</translation>
    </message>
    <message>
        <source>can't write the picture %1</source>
        <translation>das Bild %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>no limit is set</source>
        <translation>kein Limit festgelegt</translation>
    </message>
    <message>
        <source>no window can be opened: %1</source>
        <translation>es kann kein Fenster geöffnet werden: %1</translation>
    </message>
    <message>
        <source>card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>card mode (2 is CDMA)</source>
        <translation>Kartenmodus (2 ist CDMA)</translation>
    </message>
    <message>
        <source>card's operator</source>
        <translation>Anbieter der Karte</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>chosen, not plugged in</source>
        <translation>gewählt, nicht angeschlossen</translation>
    </message>
    <message>
        <source>complete is for the shells' completions</source>
        <translation>complete ist für die Vervollständigung der Shells da</translation>
    </message>
    <message>
        <source>config takes one key; see config --check</source>
        <translation>config nimmt einen Schlüssel; siehe config --check</translation>
    </message>
    <message>
        <source>connected: %1</source>
        <translation>verbunden: %1</translation>
    </message>
    <message>
        <source>connecting: %1: %2</source>
        <translation>Verbindungsaufbau: %1: %2</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>customise name</source>
        <translation>Anpassungsname</translation>
    </message>
    <message>
        <source>data-service user</source>
        <translation>Datendienst-Benutzer</translation>
    </message>
    <message>
        <source>default takes a name or --clear, not both</source>
        <translation>default nimmt einen Namen oder --clear, nicht beides</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>dials as CDMA</source>
        <translation>wählt als CDMA</translation>
    </message>
    <message>
        <source>disconnected: %1</source>
        <translation>getrennt: %1</translation>
    </message>
    <message>
        <source>disconnecting: %1</source>
        <translation>Verbindung wird getrennt: %1</translation>
    </message>
    <message>
        <source>export takes names or --all</source>
        <translation>export nimmt Namen oder --all</translation>
    </message>
    <message>
        <source>exported %1 to %2</source>
        <translation>%1 nach %2 exportiert</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ausgefallen</translation>
    </message>
    <message>
        <source>generation</source>
        <translation>Generation</translation>
    </message>
    <message>
        <source>home</source>
        <translation>Heimnetz</translation>
    </message>
    <message>
        <source>how %1 tells a balance is not known; see orbisctl ussd CODE</source>
        <translation>wie %1 das Guthaben mitteilt, ist nicht bekannt; siehe orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>how many attempts are left is not known</source>
        <translation>wie viele Versuche verbleiben, ist nicht bekannt</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>nicht angemeldet</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>%1 importiert</translation>
    </message>
    <message>
        <source>letters, digits, dots and hyphens</source>
        <translation>Buchstaben, Ziffern, Punkte und Bindestriche</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>Sperre</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>matched IMSI prefix</source>
        <translation>passendes IMSI-Präfix</translation>
    </message>
    <message>
        <source>model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>multi-mode card</source>
        <translation>Multimode-Karte</translation>
    </message>
    <message>
        <source>neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE</source>
        <translation>weder das Profil noch die SIM-Karte verrät den Anbieter; siehe orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>Netzkennung</translation>
    </message>
    <message>
        <source>new name</source>
        <translation>neuer Name</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>no command is given; see orbisctl --help</source>
        <translation>kein Befehl angegeben; siehe orbisctl --help</translation>
    </message>
    <message>
        <source>no connection in time</source>
        <translation>keine Verbindung in der gesetzten Zeit</translation>
    </message>
    <message>
        <source>no event counter can be had: %1</source>
        <translation>kein Ereigniszähler verfügbar: %1</translation>
    </message>
    <message>
        <source>no language "%1"; there are: %2</source>
        <translation>keine Sprache „%1“; es gibt: %2</translation>
    </message>
    <message>
        <source>no page "%1"; there are: %2</source>
        <translation>keine Seite „%1“; es gibt: %2</translation>
    </message>
    <message>
        <source>no temporary folder: %1</source>
        <translation>kein temporärer Ordner: %1</translation>
    </message>
    <message>
        <source>no-modem</source>
        <translation>kein Modem</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>not connected: %1</source>
        <translation>nicht verbunden: %1</translation>
    </message>
    <message>
        <source>not connected; the modem is in use by %1</source>
        <translation>nicht verbunden; das Modem wird von %1 benutzt</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>nothing can tell of connections</source>
        <translation>über Verbindungen gibt nichts Auskunft</translation>
    </message>
    <message>
        <source>nothing can tell of modems</source>
        <translation>über Modems gibt nichts Auskunft</translation>
    </message>
    <message>
        <source>nothing has been counted yet</source>
        <translation>es wurde noch nichts gezählt</translation>
    </message>
    <message>
        <source>nothing was imported from %1</source>
        <translation>aus %1 wurde nichts importiert</translation>
    </message>
    <message>
        <source>nothing was sent: %1 tells a balance by message or phone alone</source>
        <translation>nichts wurde gesendet: %1 nennt das Guthaben nur per SMS oder Anruf</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>on, roaming too</source>
        <translation>ein, auch im Roaming</translation>
    </message>
    <message>
        <source>only one of these goes at a time: %1</source>
        <translation>nur eines davon geht auf einmal: %1</translation>
    </message>
    <message>
        <source>other</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>others can read a password on the command line in the list of processes; use password=-</source>
        <translation>ein Kennwort auf der Befehlszeile können andere in der Prozessliste lesen; verwenden Sie password=-</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>eigene Nummer</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>password: only Latin-1 characters can be stored sealed</source>
        <translation>password: verschlüsselt sind nur Latin-1-Zeichen speicherbar</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>present</source>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>preset, default</source>
        <translation>Vorgabe, Standard</translation>
    </message>
    <message>
        <source>product type (1 is CDMA)</source>
        <translation>Produkttyp (1 ist CDMA)</translation>
    </message>
    <message>
        <source>profiles restored: %1</source>
        <translation>wiederhergestellte Profile: %1</translation>
    </message>
    <message>
        <source>profiles saved to %1: %2</source>
        <translation>in %1 gesicherte Profile: %2</translation>
    </message>
    <message>
        <source>proposed default</source>
        <translation>vorgeschlagener Standard</translation>
    </message>
    <message>
        <source>proposed for</source>
        <translation>vorgeschlagen für</translation>
    </message>
    <message>
        <source>puk</source>
        <translation>PUK</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>registration</source>
        <translation>Anmeldung im Netz</translation>
    </message>
    <message>
        <source>replaced %1</source>
        <translation>%1 ersetzt</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>same     %1</source>
        <translation>%1 unverändert</translation>
    </message>
    <message>
        <source>say on or off, not %1</source>
        <translation>geben Sie on oder off an, nicht %1</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>sucht</translation>
    </message>
    <message>
        <source>signal in percent</source>
        <translation>Signal in Prozent</translation>
    </message>
    <message>
        <source>skipped  %1 (exists; see --replace)</source>
        <translation>%1 übersprungen (vorhanden; siehe --replace)</translation>
    </message>
    <message>
        <source>standard input can't be read</source>
        <translation>die Standardeingabe kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>standard input can't be read: %1</source>
        <translation>die Standardeingabe kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>starting</source>
        <translation>startet</translation>
    </message>
    <message>
        <source>state</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>Status %1</translation>
    </message>
    <message>
        <source>status (3 is ready)</source>
        <translation>Status (3 ist bereit)</translation>
    </message>
    <message>
        <source>system mode</source>
        <translation>Systemmodus</translation>
    </message>
    <message>
        <source>system sub-mode</source>
        <translation>System-Untermodus</translation>
    </message>
    <message>
        <source>takes USSD commands</source>
        <translation>nimmt USSD-Befehle an</translation>
    </message>
    <message>
        <source>technology</source>
        <translation>Technik</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>the backup can't be read</source>
        <translation>die Sicherung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the card asks for its %1; see orbisctl %2</source>
        <translation>die Karte verlangt ihre %1; siehe orbisctl %2</translation>
    </message>
    <message>
        <source>the card asks for no %1</source>
        <translation>die Karte verlangt keine %1</translation>
    </message>
    <message>
        <source>the card can't be unlocked</source>
        <translation>die Karte kann nicht entsperrt werden</translation>
    </message>
    <message>
        <source>the card does not answer; whether it took the code is not known</source>
        <translation>die Karte antwortet nicht; ob sie den Code angenommen hat, ist nicht bekannt</translation>
    </message>
    <message>
        <source>the card is locked in a way that neither PIN nor PUK opens</source>
        <translation>die Karte hat eine Sperre, die weder PIN noch PUK öffnet</translation>
    </message>
    <message>
        <source>the card is unlocked</source>
        <translation>die Karte ist entsperrt</translation>
    </message>
    <message>
        <source>the card takes no code now</source>
        <translation>die Karte nimmt jetzt keinen Code an</translation>
    </message>
    <message>
        <source>the card's operator name %1 tells none of these</source>
        <translation>der Anbietername der Karte, %1, bezeichnet keine davon</translation>
    </message>
    <message>
        <source>the choice can't be kept in the settings</source>
        <translation>die Wahl kann nicht in den Einstellungen gespeichert werden</translation>
    </message>
    <message>
        <source>the configuration customised for %1 leaves no presets by IMSI</source>
        <translation>die für %1 angepasste Konfiguration enthält keine Vorgaben nach IMSI</translation>
    </message>
    <message>
        <source>the configuration has no presets by IMSI</source>
        <translation>die Konfiguration enthält keine Vorgaben nach IMSI</translation>
    </message>
    <message>
        <source>the connection can't be ended</source>
        <translation>die Verbindung kann nicht beendet werden</translation>
    </message>
    <message>
        <source>the connection has not ended yet</source>
        <translation>die Verbindung ist noch nicht beendet</translation>
    </message>
    <message>
        <source>the connection of %1 is not ours to end</source>
        <translation>die Verbindung von %1 dürfen wir nicht beenden</translation>
    </message>
    <message>
        <source>the connection was ended elsewhere</source>
        <translation>die Verbindung wurde anderswo beendet</translation>
    </message>
    <message>
        <source>the data folder %1 can't be made or entered</source>
        <translation>der Datenordner %1 kann nicht angelegt oder geöffnet werden</translation>
    </message>
    <message>
        <source>the data folder %1 is not a folder</source>
        <translation>der Datenordner %1 ist kein Ordner</translation>
    </message>
    <message>
        <source>the data volume can't be stored</source>
        <translation>das Datenvolumen kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>the default can't be cleared</source>
        <translation>der Standard kann nicht aufgehoben werden</translation>
    </message>
    <message>
        <source>the default can't be restored</source>
        <translation>der Standard kann nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>der Standard kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>the field %1 is given twice</source>
        <translation>das Feld %1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>die Datei kann nicht importiert werden</translation>
    </message>
    <message>
        <source>the file's name is empty</source>
        <translation>der Dateiname ist leer</translation>
    </message>
    <message>
        <source>the limit can't be stored</source>
        <translation>das Limit kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>the modem does not answer</source>
        <translation>das Modem antwortet nicht</translation>
    </message>
    <message>
        <source>the modem is not ready for a command, or another one is under way</source>
        <translation>das Modem ist nicht bereit für einen Befehl, oder ein anderer läuft noch</translation>
    </message>
    <message>
        <source>the modem's backend can't be had</source>
        <translation>das Backend des Modems ist nicht verfügbar</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>der Name ist leer; siehe default --clear</translation>
    </message>
    <message>
        <source>the network did not answer in time</source>
        <translation>das Netz hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>the new profile's name is the first argument</source>
        <translation>der Name des neuen Profils ist das erste Argument</translation>
    </message>
    <message>
        <source>the password of %1 is not base64, as its encrypttype says; set it again</source>
        <translation>das Kennwort von %1 ist nicht base64, wie encrypttype angibt; setzen Sie es neu</translation>
    </message>
    <message>
        <source>the profile can't be added</source>
        <translation>das Profil kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the profile can't be changed</source>
        <translation>das Profil kann nicht geändert werden</translation>
    </message>
    <message>
        <source>the profile can't be deleted</source>
        <translation>das Profil kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>the profile library does not hold the preset %1</source>
        <translation>die Profilbibliothek enthält die Vorgabe %1 nicht</translation>
    </message>
    <message>
        <source>the profiles can't be changed</source>
        <translation>die Profile können nicht geändert werden</translation>
    </message>
    <message>
        <source>the profiles can't be exported</source>
        <translation>die Profile können nicht exportiert werden</translation>
    </message>
    <message>
        <source>the profiles can't be imported</source>
        <translation>die Profile können nicht importiert werden</translation>
    </message>
    <message>
        <source>the profiles can't be listed</source>
        <translation>die Profile können nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>the profiles can't be restored</source>
        <translation>die Profile können nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>the profiles can't be stored</source>
        <translation>die Profile können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>the session has ended</source>
        <translation>die Sitzung ist beendet</translation>
    </message>
    <message>
        <source>the settings can't be stored</source>
        <translation>die Einstellungen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>die Einstellungen der automatischen Verbindung können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>the two PINs differ</source>
        <translation>die beiden PINs sind verschieden</translation>
    </message>
    <message>
        <source>there are no profiles %1</source>
        <translation>es gibt keine Profile %1</translation>
    </message>
    <message>
        <source>there is a profile %1 already</source>
        <translation>ein Profil %1 ist bereits vorhanden</translation>
    </message>
    <message>
        <source>there is no SIM card</source>
        <translation>es gibt keine SIM-Karte</translation>
    </message>
    <message>
        <source>there is no configuration key %1</source>
        <translation>es gibt keinen Konfigurationsschlüssel %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>es gibt kein Standardprofil; nennen Sie eines: orbisctl connect NAME</translation>
    </message>
    <message>
        <source>there is no field %1; there are: %2</source>
        <translation>es gibt kein Feld %1, nur: %2</translation>
    </message>
    <message>
        <source>there is no modem</source>
        <translation>es gibt kein Modem</translation>
    </message>
    <message>
        <source>there is no modem %1; see orbisctl modems</source>
        <translation>es gibt kein Modem %1; siehe orbisctl modems</translation>
    </message>
    <message>
        <source>there is no profile %1</source>
        <translation>es gibt kein Profil %1</translation>
    </message>
    <message>
        <source>there is no profile of one's own</source>
        <translation>es gibt kein eigenes Profil</translation>
    </message>
    <message>
        <source>this user may not unlock the card</source>
        <translation>dieser Benutzer darf die Karte nicht entsperren</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>unbekannter Befehl %1; siehe orbisctl --help</translation>
    </message>
    <message>
        <source>unknown device %1; use one of %2</source>
        <translation>unbekanntes Gerät %1; möglich sind: %2</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>user</source>
        <translation>eigen</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>user, default</source>
        <translation>eigen, Standard</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>what was counted can't be read, or is damaged</source>
        <translation>was gezählt wurde, kann nicht gelesen werden oder ist beschädigt</translation>
    </message>
    <message>
        <source>wrong %1: %2</source>
        <translation>falsche %1: %2</translation>
    </message>
    <message>
        <source>wrong %1: nothing opens the card any more</source>
        <translation>falsche %1: die Karte lässt sich nicht mehr öffnen</translation>
    </message>
    <message>
        <source>wrong %1: the card now asks for its PUK</source>
        <translation>falsche %1: die Karte verlangt jetzt ihre PUK</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: höchstens %2 Zeichen</translation>
    </message>
    <message>
        <source>%1: control characters can't be stored</source>
        <translation>%1: Steuerzeichen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1: may hold letters, digits, dots and hyphens</source>
        <translation>%1: darf Buchstaben, Ziffern, Punkte und Bindestriche enthalten</translation>
    </message>
    <message>
        <source>%1: must be empty or an IPv4 address such as 192.0.2.1</source>
        <translation>%1: muss leer oder eine IPv4-Adresse wie 192.0.2.1 sein</translation>
    </message>
    <message>
        <source>%1: must be true or false</source>
        <translation>%1: muss true oder false sein</translation>
    </message>
    <message>
        <source>Mobile broadband is switched off</source>
        <translation>Mobiles Breitband ist ausgeschaltet</translation>
    </message>
    <message>
        <source>NetworkManager can't use the modem now</source>
        <translation>NetworkManager kann das Modem jetzt nicht benutzen</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager antwortet nicht</translation>
    </message>
    <message>
        <source>ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto</source>
        <translation>ORBISDIAL_DEVICE nennt kein Backend; möglich sind simulated, modemmanager, none und auto</translation>
    </message>
    <message>
        <source>a link in a folder where others may have put it is not followed: %1</source>
        <translation>einer Verknüpfung, die andere in den Ordner gelegt haben könnten, wird nicht gefolgt: %1</translation>
    </message>
    <message>
        <source>a name has at most %1 characters</source>
        <translation>ein Name hat höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>a name must not contain any of %1</source>
        <translation>ein Name darf keines dieser Zeichen enthalten: %1</translation>
    </message>
    <message>
        <source>a name must not contain control characters</source>
        <translation>ein Name darf keine Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>a password can't be sealed</source>
        <translation>ein Kennwort kann nicht verschlüsselt werden</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>ein Profil braucht einen Namen</translation>
    </message>
    <message>
        <source>a profile needs an access number, for example phonenumber=*99#</source>
        <translation>ein Profil braucht eine Einwahlnummer, zum Beispiel phonenumber=*99#</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>ein Element hat mehr als %1 Attribute</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>ein anderes Programm hält die Datei gesperrt</translation>
    </message>
    <message>
        <source>apn: must begin and end with a letter or a digit</source>
        <translation>apn: muss mit einem Buchstaben oder einer Ziffer beginnen und enden</translation>
    </message>
    <message>
        <source>can't be locked</source>
        <translation>kann nicht gesperrt werden</translation>
    </message>
    <message>
        <source>can't be locked: it is not a regular file</source>
        <translation>kann nicht gesperrt werden: es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>can't be looked at</source>
        <translation>Zugriff nicht möglich</translation>
    </message>
    <message>
        <source>can't be opened</source>
        <translation>kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>can't be read now; what was last read of it stays in force</source>
        <translation>kann derzeit nicht gelesen werden; es gilt, was zuletzt gelesen wurde</translation>
    </message>
    <message>
        <source>can't be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>can't be written as XML</source>
        <translation>kann nicht als XML geschrieben werden</translation>
    </message>
    <message>
        <source>can't close</source>
        <translation>Schließen nicht möglich</translation>
    </message>
    <message>
        <source>can't create a file in the folder</source>
        <translation>im Ordner kann keine Datei angelegt werden</translation>
    </message>
    <message>
        <source>can't enter the folder</source>
        <translation>kein Zugang zum Ordner</translation>
    </message>
    <message>
        <source>can't enter the root folder</source>
        <translation>kein Zugang zum Wurzelordner</translation>
    </message>
    <message>
        <source>can't flush to disk</source>
        <translation>kann nicht auf den Datenträger geschrieben werden</translation>
    </message>
    <message>
        <source>can't look at the folder</source>
        <translation>kein Zugriff auf den Ordner</translation>
    </message>
    <message>
        <source>can't read a link</source>
        <translation>eine Verknüpfung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>can't replace</source>
        <translation>Ersetzen nicht möglich</translation>
    </message>
    <message>
        <source>can't set the file's mode</source>
        <translation>die Zugriffsrechte der Datei können nicht gesetzt werden</translation>
    </message>
    <message>
        <source>can't set the file's owner</source>
        <translation>der Besitzer der Datei kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>can't write</source>
        <translation>Schreiben nicht möglich</translation>
    </message>
    <message>
        <source>elements stand more than %1 deep in one another</source>
        <translation>Elemente sind mehr als %1-fach ineinander geschachtelt</translation>
    </message>
    <message>
        <source>every name for a copy of the damaged file is taken</source>
        <translation>alle Namen für eine Kopie der beschädigten Datei sind vergeben</translation>
    </message>
    <message>
        <source>is damaged, and can't be kept: %1</source>
        <translation>ist beschädigt und kann nicht aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>is no file's name</source>
        <translation>ist kein Dateiname</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is too large: %1 of at most %2 MB</source>
        <translation>zu groß: %1 von höchstens %2 MB</translation>
    </message>
    <message>
        <source>leads to no file</source>
        <translation>führt zu keiner Datei</translation>
    </message>
    <message>
        <source>not written: it would be too large to be read again, %1 of at most %2 MB</source>
        <translation>nicht geschrieben: zu groß, um wieder gelesen zu werden, %1 von höchstens %2 MB</translation>
    </message>
    <message>
        <source>other programs make and remove it all the time</source>
        <translation>andere Programme legen sie ständig an und entfernen sie wieder</translation>
    </message>
    <message>
        <source>profiles can't be exported to this file</source>
        <translation>in diese Datei können keine Profile exportiert werden</translation>
    </message>
    <message>
        <source>reading failed</source>
        <translation>Lesen fehlgeschlagen</translation>
    </message>
    <message>
        <source>the XML declaration is too long</source>
        <translation>die XML-Deklaration ist zu lang</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: %2</source>
        <translation>das Backend „%1“ kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: it belongs to another version</source>
        <translation>das Backend „%1“ kann nicht geladen werden: es gehört zu einer anderen Version</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: there is no %2</source>
        <translation>das Backend „%1“ kann nicht geladen werden: %2 fehlt</translation>
    </message>
    <message>
        <source>the device backend can't start</source>
        <translation>das Backend des Modems kann nicht starten</translation>
    </message>
    <message>
        <source>the document type declares entities or attributes</source>
        <translation>der Dokumenttyp deklariert Entitäten oder Attribute</translation>
    </message>
    <message>
        <source>the output can't be written: %1</source>
        <translation>die Ausgabe kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>the process was made by one that uses the modem</source>
        <translation>der Prozess stammt von einem, der das Modem benutzt</translation>
    </message>
    <message>
        <source>the sealed password of "%1" was changed outside and can't be opened</source>
        <translation>das verschlüsselte Kennwort von „%1“ wurde außerhalb geändert und kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>the user data directory can't be had</source>
        <translation>der Datenordner des Benutzers ist nicht verfügbar</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>es sind mehr als %1 Elemente</translation>
    </message>
    <message>
        <source>there are more than %1 namespaces</source>
        <translation>es sind mehr als %1 Namensräume</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>dafür reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>was damaged (%1); the damaged file is kept as %2</source>
        <translation>war beschädigt (%1); die beschädigte Datei ist als %2 aufbewahrt</translation>
    </message>
    <message>
        <source>was removed while the profiles were being changed</source>
        <translation>wurde entfernt, während die Profile geändert wurden</translation>
    </message>
    <message>
        <source>written, but the folder can't be flushed to disk</source>
        <translation>geschrieben, aber der Ordner kann nicht auf den Datenträger geschrieben werden</translation>
    </message>
</context>
</TS>
