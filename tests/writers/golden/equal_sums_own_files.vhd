--==== mghr3.vhd ====
--masks K=12 LBX_SINGLE_OUTPUT_FILE="OFF" d q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mghr3 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END mghr3;

 ARCHITECTURE RTL OF mghr3 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  mask :	STD_LOGIC_VECTOR (4 DOWNTO 0);
 BEGIN

	mask <= "01100";
	q <= (d XOR mask);

 END RTL; --mghr3
--VALID FILE
--==== mgir3.vhd ====
--masks K=21 LBX_SINGLE_OUTPUT_FILE="OFF" d q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgir3 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END mgir3;

 ARCHITECTURE RTL OF mgir3 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  mask :	STD_LOGIC_VECTOR (4 DOWNTO 0);
 BEGIN

	mask <= "10101";
	q <= (d XOR mask);

 END RTL; --mgir3
--VALID FILE
--==== mgjr3.vhd ====
--masks K=13 LBX_SINGLE_OUTPUT_FILE="OFF" d q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgjr3 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END mgjr3;

 ARCHITECTURE RTL OF mgjr3 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  mask :	STD_LOGIC_VECTOR (4 DOWNTO 0);
 BEGIN

	mask <= "01101";
	q <= (d XOR mask);

 END RTL; --mgjr3
--VALID FILE
--==== top.vhd ====
--top LBX_SINGLE_OUTPUT_FILE="OFF" d
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_m1_q	:	STD_LOGIC_VECTOR (4 DOWNTO 0);
	 SIGNAL  wire_m2_q	:	STD_LOGIC_VECTOR (4 DOWNTO 0);
	 SIGNAL  wire_m3_q	:	STD_LOGIC_VECTOR (4 DOWNTO 0);
	 COMPONENT  mghr3
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(4 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(4 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgir3
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(4 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(4 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgjr3
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(4 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(4 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_m3_q;
	m1 :  mghr3
	  PORT MAP ( 
		d => d,
		q => wire_m1_q
	  );
	m2 :  mgir3
	  PORT MAP ( 
		d => wire_m1_q,
		q => wire_m2_q
	  );
	m3 :  mgjr3
	  PORT MAP ( 
		d => wire_m2_q,
		q => wire_m3_q
	  );

 END RTL; --top
--VALID FILE
