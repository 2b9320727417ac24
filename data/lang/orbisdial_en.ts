<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <extracomment>Title of the small dialog that asks for user name and password when connecting.</extracomment>
        <translation>Connect</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <extracomment>Sentence above the two fields; %1 is the profile's name.</extracomment>
        <translation>User name and password for "%1":</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <extracomment>Label of a field. No mnemonic.</extracomment>
        <translation>User name:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <extracomment>Label of a field. No mnemonic.</extracomment>
        <translation>Password:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <extracomment>Button of the dialog: goes on connecting; up to 14 characters. No mnemonic.</extracomment>
        <translation>Connect</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <extracomment>Button of the dialog: gives up connecting; up to 14 characters. No mnemonic.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <extracomment>Why connecting failed: the settings plug-in is missing.</extracomment>
        <translation>The connection settings are not loaded.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <extracomment>Why connecting failed.</extracomment>
        <translation>There is no default profile. Set one in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <extracomment>Why connecting failed; %1 is the profile's name.</extracomment>
        <translation>There is no profile "%1".</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <extracomment>Why connecting failed: the user gave up.</extracomment>
        <translation>Connecting was cancelled.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The modem is not ready yet. Wait a moment and try again; if that does not help, unplug it and plug it in again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The network does not answer (no carrier). Try again where reception is better.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The network refused the user name or the password of "%1". Correct them in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>There is no modem. Plug one in.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <extracomment>Why connecting failed, and what to do. %1 is another program's connection.</extracomment>
        <translation>The modem is in use by %1. End that connection first.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The card has no data service for "%1". Check the access point name (APN), or ask your operator.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The network refused "%1" without saying why. Check its user name, password and access point name (APN).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <extracomment>Why the connection ended, and what to do.</extracomment>
        <translation>The connection was lost. Connect again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The connection could not be started on this computer. Try again; the details may tell more.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The number is busy. Try again later.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>There is no dial tone. Check the modem's antenna and card.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The network did not answer in time. Try again later.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The network refuses the access point name (APN) of "%1". Correct it in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>No network was found. Try again where reception is better.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The network does not admit this card. Ask your operator whether the card is active.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>There is no SIM card in the modem. Insert one.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The SIM card is locked. Enter its PIN.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The modem does not accept this SIM card. Use a card of the modem's operator.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The PIN was wrong. Enter the right one.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The modem was removed or stopped working. Plug it in again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The service for modems (ModemManager) is not running or does not answer. Start it again, or ask your administrator.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The service for connections (NetworkManager) is not running or does not answer. Start it again, or ask your administrator.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <extracomment>Why the connection ended, and what to do.</extracomment>
        <translation>The connection ended because the computer went to sleep. Connect again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <extracomment>Why the connection ended, and what to do.</extracomment>
        <translation>Another program took the modem for a connection of its own. End that one and connect again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The network asks for a user name and a password. Enter them for "%1" in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <extracomment>Why the connection ended, and what to do.</extracomment>
        <translation>The connection was ended outside of this program. Connect again if you need it.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <extracomment>Why the connection ended.</extracomment>
        <translation>The connection was ended in another program of OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>The modem hangs in an earlier call. Unplug it, and plug it in again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <extracomment>Why connecting failed, and what to do.</extracomment>
        <translation>You may not connect on this computer. Ask your administrator for the permission.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>Connecting with "%1" failed. The details tell what is known.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <extracomment>Why disconnecting failed.</extracomment>
        <translation>The connection could not be ended. Try again.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <extracomment>Why a command such as *100# came to nothing.</extracomment>
        <translation>The modem or the network takes no such commands.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <extracomment>The same.</extracomment>
        <translation>The network refused the command or ended the session.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <extracomment>The same.</extracomment>
        <translation>The network did not answer.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <extracomment>The same.</extracomment>
        <translation>The session was cancelled.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <extracomment>The same.</extracomment>
        <translation>You may not send commands on this computer. Ask your administrator for the permission.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <extracomment>The same.</extracomment>
        <translation>The command failed.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <extracomment>What to do to learn the balance; %1 is a phone number.</extracomment>
        <translation>Call %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <extracomment>The same; %1 is a phone number, %2 the message.</extracomment>
        <translation>Send the text message "%2" to %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <extracomment>The same.</extracomment>
        <translation>Send an empty text message to %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The name of the profile "%1" can't be used for a connection. Shorten it.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The access number of "%1" can't be used. Correct it in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The access point name (APN) of "%1" can't be used: at most 64 letters, digits, dots, hyphens and underscores. Correct it in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The IP address of "%1" is not valid. Correct it in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The DNS server's address in "%1" is not valid. Correct it in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The alternative DNS server's address in "%1" is not valid. Correct it in the settings.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The user name of "%1" can't be sent: at most 255 bytes. Shorten it.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <extracomment>Why connecting failed, and what to do. %1 is the profile's name.</extracomment>
        <translation>The password of "%1" can't be sent: at most 255 bytes. Shorten it.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <extracomment>How far connecting is.</extracomment>
        <translation>Preparing the modem</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <extracomment>How far connecting is.</extracomment>
        <translation>Searching the network, which may take a minute</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <extracomment>How far connecting is.</extracomment>
        <translation>Calling the network</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <extracomment>How far connecting is.</extracomment>
        <translation>Asking for an address</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <extracomment>State of the modem; %1 is another program's connection.</extracomment>
        <translation>In use by %1</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <extracomment>Note on a profile's field.</extracomment>
        <translation>The access number has no effect: the modem dials the network's own.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <extracomment>Note on a profile's field.</extracomment>
        <translation>The static IP address has no effect: the network assigns the address.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <extracomment>Note on a profile's fields.</extracomment>
        <translation>The WINS servers have no effect.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <extracomment>Note on a connection; %1 is an IP address.</extracomment>
        <translation>The static IP address could not be had; the network assigned %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <extracomment>Warning, once a month.</extracomment>
        <translation>80 percent of this month's data volume are used up.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <extracomment>Warning, once a month.</extracomment>
        <translation>This month's data volume is used up.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection waits until you connect yourself.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection waits for the modem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection waits for a network.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection does not connect while roaming.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection waits until the modem is free.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection will try again soon.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <extracomment>What automatic connection does; %1 is the profile's name.</extracomment>
        <translation>Automatic connection stopped, since the network refused "%1". Correct its user name and password, or connect yourself.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <extracomment>What automatic connection does.</extracomment>
        <translation>Automatic connection stopped: trying again would fail the same way.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <extracomment>What automatic connection does; %1 is the profile's name.</extracomment>
        <translation>Automatic connection can't use "%1", which asks for user name and password.</translation>
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
        <extracomment>Name of the page in the host's list of settings pages; up to 120 pixels.</extracomment>
        <translation>Connection</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <extracomment>Title of the page's only tab; up to 160 pixels. No mnemonic: there is nothing to switch to.</extracomment>
        <translation>Dial-up</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <extracomment>Group title above the profile list; up to 220 pixels. Its mnemonic leads to the list.</extracomment>
        <translation>Connection p&amp;rofile</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <extracomment>Group title above access number, user name and password; up to 220 pixels. No mnemonic: each field has its own.</extracomment>
        <translation>Authentication</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <extracomment>Group title above the CHAP and PAP boxes, on the page and in the advanced dialog; cut off at 220 pixels. No mnemonic: each box has its own.</extracomment>
        <translation>Authentication protocol</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <extracomment>Label of the access point name's field; up to 150 pixels.</extracomment>
        <translation>&amp;APN:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <extracomment>Label of the field for the number that the modem dials, such as *99#; up to 150 pixels.</extracomment>
        <translation>Access num&amp;ber:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <extracomment>Label of the user name's field; up to 150 pixels.</extracomment>
        <translation>User na&amp;me:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <extracomment>Label of the password's field; up to 150 pixels.</extracomment>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <extracomment>Radio button: the network gives the APN or the addresses; up to 100 pixels. No mnemonic: three groups of the advanced dialog share it.</extracomment>
        <translation>Dynamic</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <extracomment>Radio button: the user enters the APN or the addresses; up to 80 pixels. No mnemonic: three groups of the advanced dialog share it.</extracomment>
        <translation>Static</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <extracomment>Check box below user name and password: ask for both when connecting; cut off at 230 pixels.</extracomment>
        <translation>As&amp;k when connecting</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_CHAP</source>
        <extracomment>Check box: authenticate by CHAP, on the page and in the advanced dialog.</extracomment>
        <translation>C&amp;HAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_PAP</source>
        <extracomment>Check box: authenticate by PAP, on the page and in the advanced dialog.</extracomment>
        <translation>&amp;PAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NEW</source>
        <extracomment>Button: enter a new profile; up to 105 pixels.</extracomment>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <extracomment>Button: delete the selected profile; up to 105 pixels.</extracomment>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <extracomment>Button: edit the selected profile; up to 105 pixels.</extracomment>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <extracomment>Button: save what was entered; up to 105 pixels.</extracomment>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <extracomment>Button: give up what was entered and go back to viewing; up to 105 pixels.</extracomment>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <extracomment>Button: make the selected profile the default one; up to 105 pixels.</extracomment>
        <translation>Set de&amp;fault</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <extracomment>Button: open the import dialog; up to 105 pixels.</extracomment>
        <translation>&amp;Import…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <extracomment>Button: open the export dialog; up to 105 pixels.</extracomment>
        <translation>E&amp;xport…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <extracomment>Button: open the advanced dialog; up to 105 pixels.</extracomment>
        <translation>Ad&amp;vanced…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <extracomment>Follows the default profile's name and a blank in the profile list. Always in ASCII parentheses, without a mnemonic: it is searched for and taken off again.</extracomment>
        <translation>(Default)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <extracomment>Caption of every message and question of the page.</extracomment>
        <translation>Connection settings</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button of messages and dialogs; up to 100 pixels. No mnemonic: the Return key presses it.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button of dialogs; up to 100 pixels. No mnemonic: the Escape key presses it.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <extracomment>Button of questions; up to 100 pixels.</extracomment>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <extracomment>Button of questions; up to 100 pixels.</extracomment>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <extracomment>Message: the profile name is empty or blank.</extracomment>
        <translation>Please enter a profile name.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <extracomment>Message: another profile has the name that was entered.</extracomment>
        <translation>A profile with this name already exists. Please choose another name.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <extracomment>Message: the profile name has a forbidden character. The list of these characters follows at once, so the text ends with a colon and the blank that belongs after it.</extracomment>
        <translation>The profile name must not contain any of these characters: </translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <extracomment>Message: the access number is empty.</extracomment>
        <translation>Please enter the access number, for example *99#.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <extracomment>Message: the APN is not well formed.</extracomment>
        <translation>The APN is not valid. It may contain letters, digits, dots and hyphens, and must begin and end with a letter or a digit.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <extracomment>Question: delete the selected profile?</extracomment>
        <translation>Do you want to delete this profile?</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <extracomment>Question: the page is left while a profile is being edited.</extracomment>
        <translation>The profile has unsaved changes. Do you want to save them?</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <extracomment>Question of an import: follows the profile's name and a blank, and ends the sentence that the name begins.</extracomment>
        <translation>already exists. Do you want to replace this profile?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <extracomment>Box to tick below the question of an import, when more of its names exist.</extracomment>
        <translation>Do the same for the remaining profiles</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <extracomment>Message of the advanced dialog: the IP address is not valid.</extracomment>
        <translation>The IP address is not valid. Please enter one such as 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <extracomment>Message of the advanced dialog: the address of a DNS server is not valid.</extracomment>
        <translation>The DNS server address is not valid. Please enter one such as 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <extracomment>Message of the advanced dialog: the address of a WINS server is not valid.</extracomment>
        <translation>The WINS server address is not valid. Please enter one such as 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <extracomment>Title of the import dialog; up to 350 pixels.</extracomment>
        <translation>Import profiles</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <extracomment>Title of the export dialog; up to 350 pixels.</extracomment>
        <translation>Export profiles</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <extracomment>Root of the tree of profiles in the import/export dialog; ticking it ticks all. No mnemonic: a tree shows it as it stands.</extracomment>
        <translation>Dial-up profiles</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <extracomment>Button of the import dialog: choose the file to import from; up to 140 pixels.</extracomment>
        <translation>&amp;Browse…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <extracomment>Title of the advanced dialog; up to 350 pixels.</extracomment>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <extracomment>Group title in the advanced dialog; up to 350 pixels. No mnemonic: each field has its own.</extracomment>
        <translation>IP address</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <extracomment>Group title in the advanced dialog; up to 350 pixels. No mnemonic: each field has its own.</extracomment>
        <translation>DNS servers</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <extracomment>Group title in the advanced dialog; up to 350 pixels. No mnemonic: each field has its own.</extracomment>
        <translation>WINS servers</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <extracomment>Label in the advanced dialog; up to 110 pixels.</extracomment>
        <translation>&amp;IP address:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <extracomment>Label in the advanced dialog, in the group of the DNS servers; up to 110 pixels.</extracomment>
        <translation>P&amp;rimary:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <extracomment>Label in the advanced dialog, in the group of the DNS servers; up to 110 pixels.</extracomment>
        <translation>&amp;Secondary:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <extracomment>Label in the advanced dialog, in the group of the WINS servers; up to 110 pixels.</extracomment>
        <translation>Pri&amp;mary:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <extracomment>Label in the advanced dialog, in the group of the WINS servers; up to 110 pixels.</extracomment>
        <translation>S&amp;econdary:</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <extracomment>Base of a new profile's name: a number follows at once, as in "New Profile1". No character that a profile name must not have; up to 40 characters.</extracomment>
        <translation>New Profile</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <extracomment>Tool tip of the disabled buttons Edit and Delete: the profile is read-only. Names the button New as it is written there.</extracomment>
        <translation>This profile is read-only. To change it, press New and enter its values under another name.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <extracomment>Tool tip of the disabled buttons Edit and Delete: the profile comes with the configuration. Says how a profile of the user's own is made from it.</extracomment>
        <translation>This profile is a preset. To change it, close the settings and press Ctrl+N in the main window: that makes a profile of your own with the same values.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <extracomment>Tool tip of the disabled buttons Edit and Delete: the profile is in use.</extracomment>
        <translation>This profile is connected. Disconnect first.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <extracomment>Tool tip of the disabled button Set default: a connection is up.</extracomment>
        <translation>The default can't be changed while a connection is up. Disconnect first.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <extracomment>Tool tip of the disabled buttons Edit, Delete and Set default: the list is empty. Names the button New as it is written there.</extracomment>
        <translation>There is no profile yet. Press New to create one.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <extracomment>Tool tip of the disabled buttons Edit, Delete and Set default during an edit. Names the buttons Save and Undo as they are written there.</extracomment>
        <translation>A profile is being edited. Press Save or Undo first.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <extracomment>Tool tip of the disabled buttons Save and Undo: nothing is being edited. Names the buttons New and Edit as they are written there.</extracomment>
        <translation>No profile is being edited. Press New or Edit first.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <extracomment>Line in the page while a read-only profile is shown.</extracomment>
        <translation>This profile is read-only.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <extracomment>Line in the page while a preset is shown.</extracomment>
        <translation>This profile is a preset.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <extracomment>Line in the page while the profile in use is shown.</extracomment>
        <translation>This profile is connected.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <extracomment>Tool tip of the button Save after a failed write. The storage problem follows in the next line. Names the button Save as it is written there.</extracomment>
        <translation>The profile could not be stored. Nothing is lost: put the problem right and press Save again.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <extracomment>Hint line below the password field; wraps into two lines, so up to 600 pixels.</extracomment>
        <translation>Some characters can't be stored: use Western European ones only.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <extracomment>Accessible name (for screen readers) of the profile list; not drawn.</extracomment>
        <translation>Profile</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <extracomment>Accessible name (for screen readers) of the field in which a profile's name is typed; not drawn.</extracomment>
        <translation>Profile name</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <extracomment>Accessible name (for screen readers) of the tree in the import/export dialog; not drawn.</extracomment>
        <translation>Profiles to choose from</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <extracomment>Message: the file name typed for an export has an asterisk.</extracomment>
        <translation>A file name can't contain "*". Please enter another one.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <extracomment>Question before an export into an existing file: follows the file's name and a blank, and ends the sentence that the name begins.</extracomment>
        <translation>exists already. Its profiles are kept; those of the same name are replaced. Export into it?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <extracomment>Message: a profile file was opened, but the configuration has no import.</extracomment>
        <translation>The configuration does not allow imports.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <extracomment>Message: the profile file that was opened is not there.</extracomment>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <extracomment>Message: the file that was opened holds no profile.</extracomment>
        <translation>The file holds no profiles.</translation>
    </message>
</context>
<context>
    <name>OrbisDial</name>
    <message>
        <source>IDS_HOST_TITLE</source>
        <extracomment>Title of the main window and of its messages; the product's name, the same in every language.</extracomment>
        <translation>OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE_SIMULATED</source>
        <extracomment>Title of the main window while the simulated modem is in use.</extracomment>
        <translation>OrbisDial (simulated modem)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <extracomment>Button below the settings page: takes the page's changes; up to 14 characters. No mnemonic.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <extracomment>Button below the settings page: drops the page's changes; up to 14 characters. No mnemonic.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <extracomment>Accessible name (for screen readers) of the list of settings pages; not drawn.</extracomment>
        <translation>Settings pages</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <extracomment>Bar on top: no profile is the default one.</extracomment>
        <translation>No default profile</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <extracomment>Button in the bar: connects with the default profile; up to 14 characters. No mnemonic.</extracomment>
        <translation>Connect</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <extracomment>The same button while a connection is up or being made; up to 14 characters. No mnemonic.</extracomment>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <extracomment>State of the connection in the bar.</extracomment>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <extracomment>State of the connection in the bar.</extracomment>
        <translation>Connecting…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <extracomment>State of the connection in the bar; %1 is the profile's name.</extracomment>
        <translation>Connected with %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <extracomment>State of the connection in the bar.</extracomment>
        <translation>Disconnecting…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <extracomment>State in the bar when nothing can connect.</extracomment>
        <translation>No dial-up plug-in is loaded</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <extracomment>Line below the bar; %1 is the card's IMSI (digits).</extracomment>
        <translation>SIM card %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <extracomment>Line below the bar; %1 is the card's IMSI (digits), %2 the name of the preset that the card selected, %3 the leading digits that matched.</extracomment>
        <translation>SIM card %1: preset "%2", selected by its prefix %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <extracomment>Line below the bar; as IDS_HOST_SIM_PRESET; the card's own name for its operator told which of the operators with this prefix it is from, %4.</extracomment>
        <translation>SIM card %1: preset "%2", selected by its prefix %3 and the name of its operator, %4</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <extracomment>Line below the bar; %1 is the card's IMSI (digits), %2 the leading digits that matched.</extracomment>
        <translation>SIM card %1: prefix %2 is known, but none of its presets is the proposed default</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <extracomment>Line below the bar; %1 is the card's IMSI (digits).</extracomment>
        <translation>SIM card %1: no preset matches it</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <extracomment>Warning line below the bar; %1 is a technical English line "file:line:column: reason".</extracomment>
        <translation>Storage problem: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <extracomment>Line at the bottom of the window; %1 is a plug-in's file name, %2 one of the next four reasons.</extracomment>
        <translation>%1 can't be used: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <extracomment>Reason why a plug-in can't be used; %1 is the system's English message.</extracomment>
        <translation>it can't be loaded (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <extracomment>Reason why a plug-in can't be used.</extracomment>
        <translation>it is not a plug-in of this program</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <extracomment>Reason why a plug-in can't be used.</extracomment>
        <translation>another plug-in has the same identifier</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <extracomment>Reason why a plug-in can't be used.</extracomment>
        <translation>it could not start</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <extracomment>Line at the bottom of the window; %1 is a technical English reason.</extracomment>
        <translation>The modem can't be used: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <extracomment>Name of the host's own settings page in the list on the left; up to 16 characters.</extracomment>
        <translation>Program</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <extracomment>Label before the box of languages. No mnemonic.</extracomment>
        <translation>Language:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <extracomment>Check box on the host's own page; hides the button of the profile page that makes a profile the default. Names that button as it is written there.</extracomment>
        <translation>Keep the default profile: hide the "Set default" button</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <extracomment>Message: the host's settings file can't be written.</extracomment>
        <translation>The settings could not be stored.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>Profile:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>Profile to connect with</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>Choose a profile, or type a part of its name</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (Default)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>My profiles</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>Presets for this SIM card</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>Presets…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>Presets of the World's Operators</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>Search:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>Country, operator, plan, APN or network code</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>Countries, operators and plans</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>Country, operator, plan</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <extracomment>Line below the list of the world's presets; %1 is how many plans are shown.</extracomment>
        <translation>Plans: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>Nothing found. Try fewer words, or another spelling.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>Other presets</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <extracomment>A plan (%1) that is paid in advance.</extracomment>
        <translation>%1 (prepaid)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <extracomment>A plan (%1) that is paid by contract, afterwards.</extracomment>
        <translation>%1 (contract)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>Choose a plan to see what it sets.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>Use as a new profile…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>Country:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>Operator:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>Plan:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>chosen by the network</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>Access number:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>User name:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>asked for when connecting</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>Authentication:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>Network codes:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <extracomment>Menu entry and tool tip: makes a profile of the user's own from the one that is chosen.</extracomment>
        <translation>New from this one…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>New Profile</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <extracomment>%1 is the name of a profile.</extracomment>
        <translation>A profile of your own with the values of "%1". You can change them in the settings.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>Make it the default</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>The default can't be changed while a connection is up.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <extracomment>The window's large button on a first start with an unknown SIM card; up to 22 characters.</extracomment>
        <translation>Choose operator…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>No preset is known for this SIM card. Choose your operator, or any profile below.</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>Unlock…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <extracomment>Menu entry: asks the network for a prepaid card's balance.</extracomment>
        <translation>Balance…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>&amp;Connection</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>About OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>About OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>A connection manager for mobile-broadband modems.

MIT licence. Made with Qt %1 (LGPL), libsodium (ISC), ICU (Unicode) and the public-domain database mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>Connect with</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>Show window</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>The part of the program that connects is missing. Install OrbisDial again.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>Looking for a modem…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>This takes a moment.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>Modem service not available</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial finds modems through ModemManager, which is not running or does not answer. Install it, or start it again.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>Connection service not available</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>OrbisDial connects through NetworkManager, which does not answer. Start it again, or ask your administrator.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>No modem</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>Plug in a modem. Some take half a minute until they are found.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>No SIM card</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>Unplug the modem, put a SIM card into it, and plug it in again.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>SIM card locked</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>It asks for its PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>The PIN was wrong too often. The card now asks for the PUK that your operator gave you.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>Neither PIN nor PUK opens this lock. Ask your operator or the seller of the modem.</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>Modem starting…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>It will be ready in a moment.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>Modem not ready</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>Unplug it and plug it in again.</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>Not registered with a network</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>Searching for a network…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>The network refuses this SIM card. Ask your operator.</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>signal %1 %</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>roaming</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>Connecting with %1…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>Could not connect</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>Could not connect with %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>The connection with %1 broke</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <extracomment>%1 is a profile.</extracomment>
        <translation>The connection with %1 was ended</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>Transfer of the last three minutes</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>This month: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>This month: %1 of %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>Unlock the SIM card</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>Balance of the SIM card</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <extracomment>%1 is an operator, %2 a command such as *100#.</extracomment>
        <translation>%1 tells the balance of a prepaid card in answer to the command %2. Nothing is sent before you press "Ask".</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <extracomment>%1 is an operator; lines such as "Call 123." follow.</extracomment>
        <translation>%1 tells the balance this way, which you have to go yourself:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>How your operator tells the balance is not known here. If you know its command, type it; nothing is sent before you press "Ask".</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>Command:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <extracomment>Button: sends the command.</extracomment>
        <translation>Ask</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <extracomment>What the user answers to the network's question.</extracomment>
        <translation>Your reply:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <extracomment>Button: sends the reply.</extracomment>
        <translation>Send</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>Waiting for the network…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>There is no modem ready that can send commands to the network.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>The SIM card asks for its PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>The PIN was wrong too often. Enter the PUK that your operator gave you, and choose a new PIN.</translation>
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
        <translation>New PIN:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>New PIN again:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>Unlock</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>Attempts left: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>How many attempts are left is not known.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>When this one is wrong, the card asks for the PUK.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>When this one is wrong, the card is lost for good.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>Use the last attempt</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>The card checks it…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>That was wrong.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>You are not allowed to unlock the card. Ask the administrator of this computer.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>The card could not be unlocked. %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>Show messages about the connection</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>Closing the window leaves the program in the tray</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>Start with the session</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>Stay connected when the program ends</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>Monthly data limit of this SIM card:</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>None</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>You are connected. The connection ends with the program.</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>You are connected, and stay so when the program ends.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <extracomment>Title of the panel at the right; up to 24 characters.</extracomment>
        <translation>Simulated modem</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <extracomment>Label in the panel, before the subscriber number on the SIM card; up to 16 characters.</extracomment>
        <translation>IMSI:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <extracomment>Grey hint in the IMSI field while it is empty; up to 16 characters.</extracomment>
        <translation>no card</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <extracomment>Check box in the panel: the modem is ready; up to 24 characters.</extracomment>
        <translation>Ready</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <extracomment>Check box in the panel: the card serves CDMA and WCDMA; up to 24 characters.</extracomment>
        <translation>Multi-mode card</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <extracomment>Label in the panel; up to 16 characters.</extracomment>
        <translation>Card mode:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <extracomment>Value of the card mode besides CDMA and WCDMA; up to 16 characters.</extracomment>
        <translation>None</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <extracomment>Label in the panel, before CDMA or WCDMA; up to 16 characters.</extracomment>
        <translation>Product type:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <extracomment>Label in the panel, before a number; up to 16 characters.</extracomment>
        <translation>System mode:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <extracomment>Label in the panel, before a number; up to 16 characters.</extracomment>
        <translation>Sub-mode:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <extracomment>Label in the panel, before what the next dialling ends with; up to 16 characters.</extracomment>
        <translation>Dialling:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <extracomment>Outcome of dialling: the connection is made; up to 24 characters.</extracomment>
        <translation>Answers</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <extracomment>Outcome of dialling; up to 24 characters.</extracomment>
        <translation>No carrier</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <extracomment>Outcome of dialling; up to 24 characters.</extracomment>
        <translation>Authentication fails</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <extracomment>Outcome of dialling; up to 24 characters.</extracomment>
        <translation>No signal</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <extracomment>Button in the panel: the modem reports that it has finished initialising; up to 16 characters. No mnemonic.</extracomment>
        <translation>Initialise</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <extracomment>Button in the panel: the modem reports that its card was changed; up to 16 characters. No mnemonic.</extracomment>
        <translation>Change card</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <extracomment>Label in the panel, before a list of technical names; the line below holds the value; up to 16 characters.</extracomment>
        <translation>Setting:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <extracomment>Button in the panel: the network ends the connection; up to 20 characters. No mnemonic.</extracomment>
        <translation>Drop connection</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <extracomment>Message: %1 is the path of a file that was opened, %2 a sentence that says why.</extracomment>
        <translation>Nothing was imported from %1.
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <extracomment>Message: a profile file was opened while the program asks something else.</extracomment>
        <translation>Finish what is open first, then open the file again.</translation>
    </message>
</context>
</TS>
